// Paints the program's icon as PNG files of the given sizes, the same figure as
// autojobverw.svg, for desktops that look for pictures of a fixed size.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTextStream>

namespace {

void paintIcon(QPainter& p) {
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x2b, 0x5d, 0x8c));
    p.drawRoundedRect(QRectF(4, 4, 56, 56), 10, 10);
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(13, 11, 34, 40), 3, 3);
    p.setBrush(QColor(0xc9, 0x48, 0x3f));
    p.drawRoundedRect(QRectF(13, 11, 34, 9), 3, 3);
    p.drawRect(QRectF(13, 16, 34, 4));
    p.setBrush(QColor(0x9f, 0xb6, 0xcc));
    p.drawRect(QRectF(18, 25, 24, 3));
    p.drawRect(QRectF(18, 32, 16, 3));
    p.drawRect(QRectF(18, 39, 10, 3));
    p.setBrush(QColor(0xf0, 0xad, 0x4e));
    p.setPen(QPen(Qt::white, 2.5));
    p.drawEllipse(QPointF(44, 44), 12, 12);
    p.setPen(QPen(Qt::white, 2.5, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(44, 44), QPointF(44, 36));
    p.drawLine(QPointF(44, 44), QPointF(50, 44));
}

}  // namespace

// paint_icon OUTDIR SIZE...: writes OUTDIR/SIZExSIZE/autojobverw.png for each size.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 3) {
        QTextStream(stderr) << "paint_icon OUTDIR SIZE...\n";
        return 2;
    }
    for (int i = 2; i < args.size(); ++i) {
        const int size = args[i].toInt();
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter p(&image);
        p.scale(size / 64.0, size / 64.0);
        paintIcon(p);
        p.end();
        const QString dir = QStringLiteral("%1/%2x%2").arg(args[1]).arg(size);
        if (!QDir().mkpath(dir) || !image.save(dir + QStringLiteral("/autojobverw.png"))) {
            QTextStream(stderr) << "paint_icon: cannot write " << dir << "\n";
            return 1;
        }
    }
    return 0;
}
