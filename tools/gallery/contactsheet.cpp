#include "gallery/contactsheet.h"

#include <QImage>
#include <QPainter>
#include <QSaveFile>

namespace {

constexpr int kThumbWidth = 320;
constexpr int kThumbHeight = 240;
constexpr int kCaption = 18;
constexpr int kGap = 8;
constexpr int kColumns = 5;

QStringList distinct(const QVector<Picture> &pictures, QString Picture::*member)
{
    QStringList values;
    for (const Picture &picture : pictures) {
        if (!values.contains(picture.*member))
            values << picture.*member;
    }
    return values;
}

} // namespace

bool writeContactSheet(const QString &folder, const QVector<Picture> &pictures, const QString &fileName)
{
    const int rows = (pictures.size() + kColumns - 1) / kColumns;
    QImage sheet(kColumns * (kThumbWidth + kGap) + kGap, rows * (kThumbHeight + kCaption + kGap) + kGap,
                 QImage::Format_RGB32);
    sheet.fill(QColor(0x30, 0x30, 0x34));
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setPixelSize(12);
    painter.setFont(font);
    for (int i = 0; i < pictures.size(); ++i) {
        const Picture &picture = pictures.at(i);
        const int x = kGap + i % kColumns * (kThumbWidth + kGap);
        const int y = kGap + i / kColumns * (kThumbHeight + kCaption + kGap);
        const QImage image(folder + QLatin1Char('/') + picture.file);
        painter.drawImage(x, y, image.scaled(kThumbWidth, kThumbHeight, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        painter.drawText(QRect(x, y + kThumbHeight, kThumbWidth, kCaption), Qt::AlignLeft | Qt::AlignVCenter,
                         QStringLiteral("%1 %2 (%3)").arg(picture.page, picture.shot, picture.variant));
    }
    painter.end();
    return sheet.save(fileName, "PNG");
}

bool writeIndex(const QString &folder, const QVector<Picture> &pictures)
{
    const QStringList variants = distinct(pictures, &Picture::variant);
    QString html
        = QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>Screens</title>\n"
                         "<style>body{font-family:sans-serif;background:#222;color:#ddd}"
                         "table{border-spacing:8px}img{width:320px;display:block}"
                         "th{text-align:left;font-weight:normal}td{vertical-align:top}</style></head><body>\n"
                         "<h1>Screens of the instrument</h1>\n<table>\n<tr><th></th>");
    for (const QString &variant : variants)
        html += QStringLiteral("<th>%1</th>").arg(variant.toHtmlEscaped());
    html += QStringLiteral("</tr>\n");
    QStringList done;
    for (const Picture &row : pictures) {
        const QString title = row.page + QStringLiteral(": ") + row.shot;
        if (done.contains(title))
            continue;
        done << title;
        html += QStringLiteral("<tr><th>%1</th>").arg(title.toHtmlEscaped());
        for (const QString &variant : variants) {
            html += QStringLiteral("<td>");
            for (const Picture &picture : pictures) {
                if (picture.page == row.page && picture.shot == row.shot && picture.variant == variant)
                    html += QStringLiteral("<a href=\"%1\"><img src=\"%1\" alt=\"%2\" loading=\"lazy\"></a>")
                                .arg(picture.file.toHtmlEscaped(), title.toHtmlEscaped());
            }
            html += QStringLiteral("</td>");
        }
        html += QStringLiteral("</tr>\n");
    }
    html += QStringLiteral("</table>\n</body></html>\n");
    QSaveFile file(folder + QStringLiteral("/index.html"));
    const QByteArray bytes = html.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}
