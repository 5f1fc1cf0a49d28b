#pragma once

#include "setup/linelist.h"

/// The limit sets: chooses the one in use, makes, names and deletes the user's.
class SetupLimitMenu : public LineList
{
    Q_OBJECT

public:
    explicit SetupLimitMenu(QWidget *parent = nullptr);

    QString selectedName() const;
    static bool isBuiltIn(const QString &name);

public slots:
    void init_parameter() override;

signals:
    void showDetailItem(); // of the selected set
    void closed();

protected:
    QString title() const override { return tr("Limits"); }
    QString hint() const override { return tr("Enter: values"); }
    int lineCount() const override { return m_names.size(); }
    Line line(int index) const override;
    void lineChosen() override;

private:
    void loadLimits();
    void addLimits();
    void deleteLimits();
    void nameLimits();
    void selectOption();
    QString askName(const QString &title, const QString &present);
    void selectName(const QString &name);

    QStringList m_names;
};
