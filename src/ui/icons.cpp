#include "ui/icons.h"

#include "ui/theme.h"

#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace pinmora {
namespace {

/// From this side on, in device-independent pixels, lines look coarse at their usual width.
constexpr double largeSide = 40;

enum class Ink { Text, Quiet, Accent };

/// Draws from the drawing each time, in the colours of that moment.
class LineIcon : public QIconEngine {
public:
    LineIcon(QString name, QByteArray drawing, Ink ink)
        : name_(std::move(name)), drawing_(std::move(drawing)), ink_(ink) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override {
        draw(painter, rect, mode, rect.height());
    }

    void draw(QPainter *painter, const QRect &rect, QIcon::Mode mode, double side) {
        QByteArray drawing = drawing_;
        drawing.replace("currentColor", ink(mode).name().toLatin1());
        drawing.replace(
            "\"accent\"",
            '"' + (mode == QIcon::Disabled ? ink(mode) : colours().accent).name().toLatin1() + '"');
        drawing.replace(
            "\"warning\"",
            '"' + (mode == QIcon::Disabled ? ink(mode) : colours().warning).name().toLatin1() +
                '"');
        if (side >= largeSide) {
            drawing.replace("stroke-width=\"1.75\"", "stroke-width=\"1.2\"");
        }
        QSvgRenderer renderer(drawing);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        if (mode == QIcon::Disabled) {
            painter->setOpacity(painter->opacity() * 0.5);
        }
        renderer.render(painter, rect);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    /// `size` is in pixels of the screen already.
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State /*state*/,
                         qreal scale) override {
        const QString key = QStringLiteral("line icon %1 %2x%3 %4 %5 %6 %7 %8")
                                .arg(name_)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(ink(mode).rgba())
                                .arg(colours().accent.rgba())
                                .arg(colours().warning.rgba())
                                .arg(mode)
                                .arg(scale);
        QPixmap picture;
        if (!QPixmapCache::find(key, &picture)) {
            picture = QPixmap(size);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            draw(&painter, QRect(QPoint(), size), mode, size.height() / scale);
            QPixmapCache::insert(key, picture);
        }
        return picture;
    }

    QIconEngine *clone() const override { return new LineIcon(name_, drawing_, ink_); }

private:
    QColor ink(QIcon::Mode mode) const {
        return ink_ == Ink::Quiet || mode == QIcon::Disabled ? colours().quietText
               : ink_ == Ink::Accent                         ? colours().accent
                                                             : colours().text;
    }

    const QString name_;
    const QByteArray drawing_;
    const Ink ink_;
};

QIcon iconNamed(std::string_view name, Ink ink) {
    const QString text = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    QFile file(QStringLiteral(":/icons/%1.svg").arg(text));
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("no icon named %s", qPrintable(text));
        return {};
    }
    return QIcon(new LineIcon(text, file.readAll(), ink));
}

} // namespace

QIcon icon(std::string_view name) {
    return iconNamed(name, Ink::Text);
}

QIcon quietIcon(std::string_view name) {
    return iconNamed(name, Ink::Quiet);
}

QIcon accentIcon(std::string_view name) {
    return iconNamed(name, Ink::Accent);
}

} // namespace pinmora
