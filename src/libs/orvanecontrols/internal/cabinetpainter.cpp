#include "cabinetpainter.h"

#include <QCache>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPointer>
#include <QTextOption>

#include <cstring>

namespace orvane
{

namespace
{

/// Bounds what all pictures take together, in bytes.
constexpr int greatestCost = 4 * 1024 * 1024;
/// A larger button is painted each time: its texts are but a small part of the work.
constexpr int greatestPixelCount = 256 * 256;

constexpr QRgb outlineColor = qRgb(112, 112, 112);

void paintFace(QPainter &painter, const CabinetFace &face)
{
    painter.setBrush(QColor(cabinetFill));
    painter.setPen(QColor(outlineColor));
    if (!face.size.isEmpty())
        painter.drawRect(face.rectangle);
    if (face.hasCount)
        painter.drawText(face.rectangle, Qt::AlignCenter, QString::number(face.count));

    const QString text = cabinetSizeText(face.size);
    painter.setPen(Qt::white);
    if (face.isModel) {
        painter.drawText(QRect(QPoint(), face.area), Qt::AlignHCenter | Qt::AlignBottom, text);
        return;
    }
    const QFontMetrics metrics(face.font);
    const int textWidth = metrics.horizontalAdvance(text);
    const QRect textRect((face.area.width() - textWidth) / 2,
                         face.area.height() - face.bandHeight
                             + (face.bandHeight - metrics.height()) / 2,
                         textWidth, face.bandHeight);
    painter.drawText(textRect, text, QTextOption());
}

/// The ground of a button: an even piece of an image.
struct Ground {
    const QImage *image = nullptr; ///< None where the ground is of another kind.
    QRect place; ///< In the image's pixels.
    int scale = 0; ///< From the button's pixels to the image's.
};

/// The whole number by which \a transform enlarges, or 0 if it does more or sets pixels between
/// pixels.
int wholeScale(const QTransform &transform)
{
    const auto isWhole = [](qreal number) { return number == qRound(number); };
    if (transform.type() > QTransform::TxScale || transform.m11() != transform.m22()
        || transform.m11() < 1 || !isWhole(transform.m11()) || !isWhole(transform.dx())
        || !isWhole(transform.dy())) {
        return 0;
    }
    return qRound(transform.m11());
}

/// Whether all pixels of \a image in \a area have one colour, and let nothing shine through.
bool isEven(const QImage &image, const QRect &area)
{
    const auto line = [&](int y) {
        return reinterpret_cast<const QRgb *>(image.constScanLine(y)) + area.left();
    };
    const QRgb *first = line(area.top());
    const auto size = sizeof(QRgb) * size_t(area.width());
    if (qAlpha(*first) != 255 || std::memcmp(first, first + 1, size - sizeof(QRgb)) != 0)
        return false;
    for (int y = area.top() + 1; y <= area.bottom(); ++y) {
        if (std::memcmp(first, line(y), size) != 0)
            return false;
    }
    return true;
}

/// What \a painter has under a button of the size \a area.
Ground groundUnder(const QPainter &painter, QSize area)
{
    const QPaintEngine *engine = painter.paintEngine();
    const QTransform &transform = painter.deviceTransform();
    const int scale = wholeScale(transform);
    const QRect place(QPoint(qRound(transform.dx()), qRound(transform.dy())), area * scale);
    if (engine->type() != QPaintEngine::Raster
        || engine->paintDevice()->devType() != QInternal::Image || place.isEmpty()
        || qint64(place.width()) * place.height() > greatestPixelCount
        || painter.renderHints() != QPainter::TextAntialiasing
        || painter.compositionMode() != QPainter::CompositionMode_SourceOver) {
        return {};
    }
    const auto &image = static_cast<const QImage &>(*engine->paintDevice());
    if ((image.format() != QImage::Format_RGB32
         && image.format() != QImage::Format_ARGB32_Premultiplied)
        || !image.rect().contains(place) || !isEven(image, place)) {
        return {};
    }
    return {&image, place, scale};
}

/// All that the pixels of a cabinet depend on.
struct Look {
    CabinetFace face;
    QImage::Format format;
    QRgb ground;
    int scale;
    bool isInside; ///< Letters cut by the edge of the image are blended in another way.
    QFont font;
    int dpi;
    Qt::LayoutDirection direction;
};

bool operator==(const CabinetFace &a, const CabinetFace &b)
{
    return a.isModel == b.isModel && a.area == b.area && a.rectangle == b.rectangle
        && a.size == b.size && a.count == b.count && a.hasCount == b.hasCount && a.font == b.font;
}

bool operator==(const Look &a, const Look &b)
{
    return a.face == b.face && a.format == b.format && a.ground == b.ground && a.scale == b.scale
        && a.isInside == b.isInside && a.font == b.font && a.dpi == b.dpi
        && a.direction == b.direction;
}

uint qHash(const Look &look, uint seed)
{
    // Of what cabinets most often differ in.
    QtPrivate::QHashCombine combine;
    seed = combine(seed, look.face.area.width());
    seed = combine(seed, look.face.size.width());
    seed = combine(seed, look.face.size.height());
    return combine(seed, look.face.count);
}

Look lookOf(const CabinetFace &face, const QPainter &painter, const Ground &ground)
{
    const QImage &image = *ground.image;
    return {face,
            image.format(),
            image.pixel(ground.place.topLeft()),
            ground.scale,
            image.rect().contains(ground.place.adjusted(-1, -1, 1, 1)),
            painter.font(),
            painter.device()->logicalDpiY(),
            painter.layoutDirection()};
}

/// Whether \a painter reaches all of \a place.
bool isWhole(const QPainter &painter, const QRect &place)
{
    return !painter.hasClipping()
        && (painter.paintEngine()->systemClip() & place) == QRegion(place);
}

/// What has been painted on \a ground.
QImage pictureOf(const Ground &ground)
{
    QImage picture = ground.image->copy(ground.place);
    picture.setDevicePixelRatio(ground.scale);
    picture.reinterpretAsFormat(QImage::Format_RGB32); // is copied without looking at the ground
    return picture;
}

/// The pictures that lately were in use. They go with the application, as fonts have to.
class Pictures : public QObject
{
public:
    static QCache<Look, QImage> &all()
    {
        static QPointer<Pictures> pictures;
        if (!pictures)
            pictures = new Pictures;
        return pictures->m_all;
    }

private:
    Pictures()
        : QObject(qGuiApp)
    {
        connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, this, [this] { m_all.clear(); });
    }

    QCache<Look, QImage> m_all{greatestCost};
};

} // namespace

QString cabinetSizeText(QSize size)
{
    return QString::number(size.width()) + "x" + QString::number(size.height());
}

void paintCabinet(QPainter &painter, const CabinetFace &face)
{
    if (face.isModel) {
        QFont small;
        small.setPixelSize(9);
        painter.setFont(small);
    }
    const Ground ground = groundUnder(painter, face.area);
    if (!ground.image) {
        paintFace(painter, face);
        return;
    }
    const Look look = lookOf(face, painter, ground);
    if (const QImage *picture = Pictures::all().object(look)) {
        painter.drawImage(0, 0, *picture);
        return;
    }
    paintFace(painter, face);
    if (isWhole(painter, ground.place)) {
        auto *picture = new QImage(pictureOf(ground));
        Pictures::all().insert(look, picture, int(picture->sizeInBytes()));
    }
}

} // namespace orvane
