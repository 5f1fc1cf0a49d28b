#include "linkmodel.h"
#include "openlink.h"
#include "platform/clock.h"
#include "stdoutcapture.h"

#include <QTest>
#include <memory>
#include <random>

/// Random streams, damaged in transit, through the link and through the model: they must agree package by package.
class TstLinkModel : public QObject
{
    Q_OBJECT

private slots:
    void damagedStreamsAgreeWithTheModel();
};

namespace {

constexpr int kStreams = 100000;
using Random = std::mt19937;

int below(Random &random, int limit)
{
    return int(random() % unsigned(limit));
}

/// A stream of a few datagrams. Payload bytes repeat a pattern of their datagram, so that a misplaced copy shows.
QVector<QByteArray> goodStream(Random &random, quint32 *id)
{
    QVector<QByteArray> stream;
    const int datagrams = 1 + below(random, 3);
    for (int i = 0; i < datagrams; ++i) {
        // The long kind is rarer, so that most streams stay short.
        constexpr int kKinds[] = { 0, 0, 0, 1, 1, 1, 2, 3, 4, 4, 5, 6, 6, 6, 7, 255 };
        HeadValues head;
        head.type = quint32(kKinds[below(random, 16)]);
        head.id = ++*id;
        head.seconds = 1600000000;
        head.milliseconds = quint32(below(random, 1000));
        const int words = head.type < 7 ? kDatagramKinds[head.type].words - Link::kTimeWords : 6;
        stream += makeDatagram(head, countingPayload(words, *id * 65536));
    }
    return stream;
}

/// Drops, repeats, swaps, truncates, flips or rewrites packages.
void damage(Random &random, QVector<QByteArray> *stream)
{
    for (int n = below(random, 4); n > 0 && !stream->isEmpty(); --n) {
        const int at = below(random, stream->size());
        switch (below(random, 7)) {
        case 0:
            stream->remove(at);
            break;
        case 1:
            stream->insert(at, QByteArray(stream->at(at)));
            break;
        case 2:
            std::swap((*stream)[at], (*stream)[below(random, stream->size())]);
            break;
        case 3: // 1 byte at least: 0 is the end of the stream
            (*stream)[at].truncate(1 + below(random, Link::kPackageBytes));
            break;
        case 4: {
            const int bit = below(random, 8 * Link::kFirstHeadBytes);
            if (bit / 8 < stream->at(at).size())
                (*stream)[at][bit / 8] = char(stream->at(at)[bit / 8] ^ (1 << bit % 8));
            break;
        }
        case 5: { // any top bits and number behind a good pattern
            const quint32 flag
                = 0x00A5FF00 | quint32(below(random, 4)) << 30 | quint32(below(random, 4) ? at : below(random, 256));
            (*stream)[at].replace(0, 4, wordsToBytes({ flag }));
            (*stream)[at].truncate(Link::kPackageBytes);
            break;
        }
        case 6:
            (*stream)[at] = QByteArray(1 + below(random, Link::kPackageBytes), char(random()));
            break;
        }
    }
}

/// The printed lines in the model's short form; the two lines that explain a loss are left out.
QStringList shortened(const QStringList &lines)
{
    QStringList result;
    for (const QString &line : lines) {
        const QString text = line.mid(line.indexOf(QLatin1Char('>')) + 2);
        if (text.startsWith(QLatin1String("Unkown")))
            result << QStringLiteral("Unkown");
        else if (text.startsWith(QLatin1String("Wrong package")))
            result << QStringLiteral("Wrong package ") + text.section(QStringLiteral("wanted = "), 1);
        else if (text.startsWith(QLatin1String("Wrong first")))
            result << QStringLiteral("Wrong first ") + text.section(QStringLiteral("No. "), 1).chopped(1);
        else if (text.startsWith(QLatin1String("last_id")))
            result << QStringLiteral("Lost %1 %2")
                          .arg(text.section(QLatin1Char(' '), 2, 2).chopped(1), text.section(QLatin1Char(' '), 5));
    }
    return result;
}

} // namespace

void TstLinkModel::damagedStreamsAgreeWithTheModel()
{
    Clock::setForTest(1600000000000);
    auto out = std::make_unique<StdoutCapture>();
    OpenLink link;
    QVERIFY(link.open());
    LinkModel model;
    Random random(20240917);
    quint32 id = 0;
    int emittedAll = 0, printedAll = 0;
    for (int n = 0; n < kStreams; ++n) {
        QVector<QByteArray> stream = goodStream(random, &id);
        damage(random, &stream);
        QVector<LinkModel::Emitted> expected;
        QStringList printed;
        for (const QByteArray &package : qAsConst(stream)) {
            const int before = expected.size();
            model.take(package, &expected, &printed);
            link.take(package);
            QVERIFY2(link.datagrams.size() == expected.size() && expected.size() <= before + 1,
                     qPrintable(QStringLiteral("stream %1").arg(n)));
        }
        for (int i = 0; i < expected.size(); ++i) {
            QVERIFY2(link.datagrams[i].type == expected[i].type && link.datagrams[i].bytes == expected[i].bytes,
                     qPrintable(QStringLiteral("stream %1, datagram %2").arg(n).arg(i)));
        }
        const QStringList lines = shortened(out->lines());
        QVERIFY2(lines == printed,
                 qPrintable(QStringLiteral("stream %1: ").arg(n) + lines.join('|') + " but " + printed.join('|')));
        emittedAll += expected.size();
        printedAll += printed.size();
        link.datagrams.clear();
    }
    // Both happened often, so the comparison means something.
    QVERIFY(emittedAll > kStreams);
    QVERIFY(printedAll > kStreams / 2);
    link.takeRms(++id, 0);
    QCOMPARE(link.datagrams.size(), 1);
}

QTEST_GUILESS_MAIN(TstLinkModel)
#include "tst_linkmodel.moc"
