#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QEvent>
#include <QImage>
#include <QObject>
#include <QTimer>

#include <array>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

/// The front panel for those who are not in front of it: presses its keys and makes pictures of its screen. A service
/// brings the protocol, this brings what every one needs.
///
/// Keys and the screen belong to the GUI thread: both are carried there in the order of their arrival, so that a
/// picture asked for behind a key shows what the key did. However fast requests come, few keys wait at any time, and
/// the event loop comes round between them. At most one picture is taken in 200 ms, whoever asks, and one more soon
/// behind a key; requests that come before it is taken share it. The GUI thread only takes it: a thread of the panel's
/// own makes the PNG and hands it out.
class Panel : public QObject
{
    Q_OBJECT
public:
    /// Gets the bytes of a PNG file, none when there is nothing to show. Called in the panel's own thread; while it
    /// runs no other picture is taken.
    using Taker = std::function<void(const QByteArray &png)>;

    static constexpr int kPictureSpacing = 200; // ms from picture to picture
    static constexpr int kSpacingBehindKey = 40; // ms, once in a kPictureSpacing
    static constexpr int kKeysPerRound = 32; // more than anybody presses while the event loop comes round once
    static constexpr int kMostTakers = 8;

    /// The one panel; it lives as long as somebody keeps it. GUI thread.
    static std::shared_ptr<Panel> shared();
    ~Panel() override;

    /// Presses and releases a key. Keys beyond kKeysPerRound are dropped. Any thread.
    /// @param code remote key number, 13 to 51; the gaps and all others post Qt::Key_unknown, which the pages ignore.
    void pressKey(int code);
    /// Posts one key event to the object with the keyboard focus, or to nobody. GUI thread.
    static void postKey(QEvent::Type type, int code);

    /// Number for requestPicture(); -1 when there are too many.
    int addTaker(Taker taker);
    /// When this returns the taker does not run and will not be called again. Not from a taker.
    void removeTaker(int number);
    /// Asks for a picture that is taken after this call. Any thread.
    void requestPicture(int taker);

signals:
    /// A request that no waiting one covers. Emitted in the thread that asked.
    void pictureWanted();
    /// A picture was taken from the screen; its takers get it later. GUI thread.
    void pictureTaken();

private:
    Panel();

    Q_INVOKABLE void deliverKey();
    void loopCameRound();
    Q_INVOKABLE void takePicture();
    int spacingNow() const;
    void comeRound();
    void grabScreen();
    Q_INVOKABLE void pictureDone();
    void makePictures();
    void handOut(const QByteArray &png, quint32 takers);

    std::mutex m_lock; // guards the members of the next group; held for a few instructions
    std::deque<int> m_keys;
    int m_keysThisRound = 0;
    bool m_keyPosted = false;
    quint32 m_wantedBy = 0; // takers, one bit each, that wait for the next picture
    bool m_busy = false; // a picture is being taken, made or handed out
    bool m_pictureComes = false; // m_picture is for the panel's thread
    bool m_ends = false;
    QImage m_picture;
    quint32 m_pictureFor = 0; // takers of m_picture
    std::condition_variable m_changed;

    std::mutex m_takersLock; // guards the takers, also while one runs
    std::array<Taker, kMostTakers> m_takers;

    // GUI thread only.
    QTimer m_round;
    QTimer m_spacing;
    QTimer m_grab;
    int m_rounds = 0; // of the event loop since a picture was begun
    QElapsedTimer m_lastPicture;
    QElapsedTimer m_lastEarly; // one that was taken early, behind a key
    bool m_keyHandled = false; // since the last picture

    std::thread m_thread; // runs makePictures()
};
