#pragma once

#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QUrlQuery>

/// A time-series database of its own for a test: the server of the package influxdb, on free ports, with all its files
/// in a folder that goes with the object.
class InfluxServer
{
public:
    InfluxServer() = default;
    ~InfluxServer()
    {
        m_process.terminate();
        if (!m_process.waitForFinished(30000)) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }
    InfluxServer(const InfluxServer &) = delete;
    InfluxServer &operator=(const InfluxServer &) = delete;

    /// Empty when it answers, otherwise why it does not.
    QByteArray start()
    {
        const QString program = QStandardPaths::findExecutable(QStringLiteral("influxd"));
        if (program.isEmpty())
            return "the package influxdb is missing (packaging/debian-test-packages.txt)";
        QByteArray problem = startOnFreePorts(program);
        for (int more = 4; more > 0 && problem.contains("address already in use"); --more)
            problem = startOnFreePorts(program); // a port was taken by somebody else meanwhile
        return problem;
    }

    /// Makes a database.
    int create(const QString &base)
    {
        return statusOf(m_network.post(request(QStringLiteral("query"), { { "q", "CREATE DATABASE " + base } }), ""));
    }
    /// Loads lines; answers the status, 204 when all of them were taken. What the server said is in said().
    int load(const QString &base, const QByteArray &lines)
    {
        return statusOf(m_network.post(request(QStringLiteral("write"), { { "db", base } }), lines));
    }
    /// The series that a query answers, times in nanoseconds.
    QJsonArray query(const QString &base, const QString &text)
    {
        statusOf(m_network.get(request(QStringLiteral("query"), { { "db", base }, { "q", text }, { "epoch", "ns" } })));
        const QJsonObject result = QJsonDocument::fromJson(m_said).object()["results"].toArray().at(0).toObject();
        return result["series"].toArray();
    }
    /// The one value of a query, behind its time.
    QJsonValue value(const QString &base, const QString &text)
    {
        return query(base, text).at(0).toObject()["values"].toArray().at(0).toArray().at(1);
    }
    QByteArray said() const { return m_said; }

private:
    QByteArray startOnFreePorts(const QString &program)
    {
        m_port = freePort();
        const QString folder = m_folder.path();
        const QString configuration = folder + QStringLiteral("/influxdb.conf");
        QFile file(configuration);
        if (!file.open(QIODevice::WriteOnly))
            return "no configuration can be written";
        const QString text
            = QStringLiteral("reporting-disabled = true\nbind-address = \"127.0.0.1:%1\"\n"
                             "[meta]\ndir = \"%3/meta\"\n[data]\ndir = \"%3/data\"\nwal-dir = \"%3/wal\"\n"
                             "[monitor]\nstore-enabled = false\n"
                             "[http]\nbind-address = \"127.0.0.1:%2\"\nlog-enabled = false\n")
                  .arg(freePort())
                  .arg(m_port)
                  .arg(folder);
        file.write(text.toUtf8());
        file.close();
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(program, { QStringLiteral("-config"), configuration });
        for (int i = 0; i < 600 && m_process.state() != QProcess::NotRunning; ++i) {
            if (statusOf(m_network.get(request(QStringLiteral("ping"), {}))) == 204)
                return {};
            QTest::qWait(100);
        }
        return "the server does not start: " + m_process.readAll();
    }

    static int freePort()
    {
        QTcpServer server;
        return server.listen(QHostAddress::LocalHost) ? server.serverPort() : 0;
    }
    QNetworkRequest request(const QString &path, const QList<QPair<QString, QString>> &items) const
    {
        QUrl url(QStringLiteral("http://127.0.0.1:%1/%2").arg(m_port).arg(path));
        QUrlQuery query;
        for (const auto &item : items)
            query.addQueryItem(item.first, QString::fromLatin1(QUrl::toPercentEncoding(item.second)));
        url.setQuery(query);
        QNetworkRequest made(url);
        made.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("text/plain; charset=utf-8"));
        return made;
    }
    int statusOf(QNetworkReply *reply)
    {
        QEventLoop loop;
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        if (!reply->isFinished())
            loop.exec();
        m_said = reply->readAll();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        delete reply;
        return status;
    }

    QTemporaryDir m_folder;
    QNetworkAccessManager m_network;
    QProcess m_process;
    int m_port = 0;
    QByteArray m_said;
};
