#pragma once

#include "pages/livepage.h"

#include <QTimer>

#include <memory>

class FirmwareExchange;

namespace Ui {
class UserUpdate;
}

/// Installs a package from a USB disk: software of the instrument, or firmware of the measurement processor. Both pass
/// through the unpacker, a program of its own (docs/updates.md), which installs software itself; firmware goes on to
/// the processor from here. While that lasts every key is swallowed, but the press that wakes the screen.
class UserUpdate : public LivePage
{
    Q_OBJECT

public:
    enum Type { Software = 1, Firmware = 2 };

    explicit UserUpdate(QWidget *parent = nullptr);
    ~UserUpdate() override;

    Type type() const { return m_type; }
    bool isBusy() const { return m_busy; }
    const FirmwareExchange *exchange() const { return m_exchange.get(); } // null when none goes on

    /// The unpacker's command for a package.
    static QString unpackCommand(const QString &package);
    /// Whether a path stands between the quotes of that command as it is, so that the shell takes it for one word.
    static bool isQuotable(const QString &path);

public slots:
    void init_parameter() override;
    void retranslateUi() override;
    void sysUpdate();
    void unpackSoftware();

    /// \name Errors that end an exchange; the first three and firmwareFlash() are for answers that the exchange of this
    /// release does not have
    /// @{
    void firmwareFatalError(quint32 value);
    void firmwareSPIError(quint32 value);
    void firmwareCrc32Error();
    void firmwareException(int stage, quint32 code, quint32 result);
    void firmwareTimeOut(int stage);
    /// @}
    void firmwareFlash();

signals:
    void goUserMain();

protected:
    bool pressKey(int key) override;

private:
    enum Result { Good = 0, NoDisk = -1, NoFile = -2 };

    bool isSwallowing() const;
    void initUpdate();
    void debugInfo(const QString &text);
    void changeToPre() { setType(Software); }
    void changeToNext() { setType(Firmware); }
    void setType(Type type);
    void execute();
    Result pickPackage(QString *package);
    int unpack(const QString &command);
    Result updateSoftware();
    Result updateFirmware();
    void startExchange(const QByteArray &image);
    void firmwareUpdateComplete();
    void clearFirmwareTmp();
    void showResult(Result result);
    void showError(int messageType, const QString &text);

    std::unique_ptr<Ui::UserUpdate> m_ui;
    std::unique_ptr<FirmwareExchange> m_exchange; // made for one update
    QTimer m_start; // the label is painted before what blocks the screen begins
    QTimer m_unpacking; // likewise
    QTimer m_swallowing; // runs while keys come in that were pressed behind a screen that stood still
    QString m_command;
    Type m_type = Software;
    bool m_busy = false;
};
