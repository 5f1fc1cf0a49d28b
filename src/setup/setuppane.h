#pragma once

#include "pages/livepage.h"

#include <memory>

namespace Ui {
class SetupPane;
}

/// A set-up page that is no list of fields: a title and five soft keys. What else stands on it is its own.
class SetupPane : public LivePage
{
    Q_OBJECT

public:
    ~SetupPane() override;

public slots:
    void init_parameter() override;
    void retranslateUi() override;

protected:
    /// \a title is to be translated.
    explicit SetupPane(const char *title, QWidget *parent);

    /// To be called once, when all widgets are there and before setKeys.
    void dressPane();
    /// Everything that follows from the settings, anew.
    virtual void showSettings() = 0;

    std::vector<FrontKeys::Row> commonKeys() override;

private:
    const char *const m_title;
    std::unique_ptr<Ui::SetupPane> m_ui;
};
