#include "support/testcase.h"

// Pixels cannot tell whether a picture is kept and copied, or painted anew. So the source itself is
// included: its inner functions tell, and the library needs no hook for it.
#include <internal/cabinetpainter.cpp> // NOLINT(bugprone-suspicious-include)

#include <QPaintEngine>
#include <QPicture>

#include <functional>

using orvane::CabinetFace;
using orvane::Ground;
using orvane::Look;
using orvane::Pictures;

using Setup = std::function<void(QPainter &)>;
Q_DECLARE_METATYPE(Setup)
Q_DECLARE_METATYPE(QMargins)

namespace
{

const QRgb groundColor = qRgb(69, 69, 69);
const QRect buttonPlace(20, 15, 80, 70);

QFont buttonFont()
{
    QFont font;
    font.setPixelSize(11);
    return font;
}

CabinetFace face(bool isModel = false)
{
    CabinetFace face;
    face.isModel = isModel;
    face.area = QSize(80, 70);
    face.bandHeight = isModel ? 12 : 20;
    face.rectangle = QRect(8, 5, 60, 40);
    face.size = QSize(192, 108);
    face.count = 3;
    face.hasCount = true;
    face.font = buttonFont();
    return face;
}

/// An even image; \a size is in logical pixels.
QImage evenImage(QSize size = QSize(120, 100), int ratio = 1,
                 QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size * ratio, format);
    image.setDevicePixelRatio(ratio);
    image.fill(groundColor);
    return image;
}

/// A painter such as a button at a place of a window has, enlarged by \a scale: it starts there,
/// and reaches no further.
class ButtonPainter : public QPainter
{
public:
    explicit ButtonPainter(QImage *image, const QRect &place = buttonPlace, int scale = 1)
        : QPainter(limited(image, place, scale))
    {
        this->scale(scale, scale);
        translate(place.topLeft());
        setFont(buttonFont());
    }

private:
    static QImage *limited(QImage *image, const QRect &place, int scale)
    {
        const int ratio = qRound(image->devicePixelRatio()) * scale;
        image->detach(); // or painting would do so, and take another engine
        image->paintEngine()->setSystemClip(QRect(place.topLeft() * ratio, place.size() * ratio));
        return image;
    }
};

/// An image that calls itself another device, or is painted on by another engine. Nothing is.
class OddImage : public QImage
{
public:
    OddImage(QInternal::PaintDeviceFlags device, QPaintEngine::Type engine)
        : QImage(evenImage(QSize(20, 20)))
        , m_device(device)
        , m_engine(engine)
    {
    }

    int devType() const override { return m_device; }
    QPaintEngine *paintEngine() const override { return &m_engine; }

private:
    class Engine : public QPaintEngine
    {
    public:
        explicit Engine(Type type)
            : m_type(type)
        {
        }

        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState &) override { }
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
        Type type() const override { return m_type; }

    private:
        Type m_type;
    };

    QInternal::PaintDeviceFlags m_device;
    mutable Engine m_engine;
};

QImage painted(QImage image, const CabinetFace &face, const QRect &place = buttonPlace,
               Qt::LayoutDirection direction = Qt::LeftToRight)
{
    ButtonPainter painter(&image, place);
    painter.setLayoutDirection(direction);
    orvane::paintCabinet(painter, face);
    painter.end();
    return image;
}

/// What face() looks like, if it has \a text for its size.
QImage paintedByHand(QImage image, const CabinetFace &face, const QString &text,
                     Qt::LayoutDirection direction)
{
    ButtonPainter painter(&image);
    painter.setLayoutDirection(direction);
    QFont font = buttonFont();
    if (face.isModel) {
        font = QFont();
        font.setPixelSize(9);
        painter.setFont(font);
    }
    painter.setPen(QColor("#707070"));
    painter.setBrush(QColor("#b7bbc2"));
    if (text == "192x108")
        painter.drawRect(8, 5, 60, 40);
    if (face.hasCount)
        painter.drawText(QRect(8, 5, 60, 40), Qt::AlignCenter, "3");
    painter.setPen(QColor("#ffffff"));
    if (face.isModel) {
        painter.drawText(QRect(0, 0, 80, 70), Qt::AlignHCenter | Qt::AlignBottom, text);
        return image;
    }
    const QFontMetrics metrics(font);
    const int width = metrics.horizontalAdvance(text);
    painter.drawText(QRect((80 - width) / 2, 50 + (20 - metrics.height()) / 2, width, 20), text,
                     QTextOption());
    return image;
}

/// The look of \a face in the middle of an even image.
Look lookOf(const CabinetFace &face)
{
    QImage image = evenImage();
    const ButtonPainter painter(&image);
    return orvane::lookOf(face, painter, {&image, buttonPlace, 1});
}

void forgetPictures()
{
    Pictures::all().clear();
}

} // namespace

class TestCabinetPainter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void faceIsAnEmptyButtonAtFirst()
    {
        const CabinetFace face{};
        QVERIFY(!face.isModel);
        QVERIFY(face.size.isEmpty());
        QCOMPARE(face.count, 0);
        QVERIFY(!face.hasCount);
    }

    void sizeIsShownAsWidthAndHeight_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("expected");
        QTest::newRow("usual") << QSize(192, 108) << "192x108";
        QTest::newRow("none") << QSize() << "-1x-1";
        QTest::newRow("empty") << QSize(0, 0) << "0x0";
    }

    void sizeIsShownAsWidthAndHeight()
    {
        QFETCH(QSize, size);
        QFETCH(QString, expected);
        QCOMPARE(orvane::cabinetSizeText(size), expected);
    }

    void scaleIsWholeAndAlikeOnBothAxes_data()
    {
        QTest::addColumn<QTransform>("transform");
        QTest::addColumn<int>("expected");
        QTest::newRow("none") << QTransform() << 1;
        QTest::newRow("moved") << QTransform(1, 0, 0, 1, 20, -15) << 1;
        QTest::newRow("twice") << QTransform(2, 0, 0, 2, 0, 0) << 2;
        QTest::newRow("thrice and moved") << QTransform(3, 0, 0, 3, 7, 9) << 3;
        QTest::newRow("one and a half") << QTransform(1.5, 0, 0, 1.5, 0, 0) << 0;
        QTest::newRow("a half") << QTransform(0.5, 0, 0, 0.5, 0, 0) << 0;
        QTest::newRow("wider") << QTransform(2, 0, 0, 1, 0, 0) << 0;
        QTest::newRow("higher") << QTransform(1, 0, 0, 2, 0, 0) << 0;
        QTest::newRow("mirrored") << QTransform(-1, 0, 0, 1, 80, 0) << 0;
        QTest::newRow("mirrored both ways") << QTransform(-1, 0, 0, -1, 80, 70) << 0;
        QTest::newRow("turned") << QTransform(0, 1, -1, 0, 0, 0) << 0;
        QTest::newRow("sheared") << QTransform(1, 0.5, 0, 1, 0, 0) << 0;
        QTest::newRow("in perspective") << QTransform(1, 0, 0.1, 0, 1, 0, 0, 0, 1) << 0;
        QTest::newRow("between columns") << QTransform(1, 0, 0, 1, 20.5, 15) << 0;
        QTest::newRow("between lines") << QTransform(1, 0, 0, 1, 20, 15.5) << 0;
        QTest::newRow("twice, between columns") << QTransform(2, 0, 0, 2, 0.5, 0) << 0;
    }

    void scaleIsWholeAndAlikeOnBothAxes()
    {
        QFETCH(QTransform, transform);
        QFETCH(int, expected);
        QCOMPARE(orvane::wholeScale(transform), expected);
    }

    void groundIsEvenInOneOpaqueColor_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QRect>("otherPixels");
        QTest::addColumn<bool>("expected");
        const QColor opaque(69, 69, 69);
        const QRect none;
        // The area reaches from (3, 2) to (9, 6).
        QTest::newRow("even") << opaque << none << true;
        QTest::newRow("first pixel") << opaque << QRect(3, 2, 1, 1) << false;
        QTest::newRow("end of the first line") << opaque << QRect(9, 2, 1, 1) << false;
        QTest::newRow("start of the second line") << opaque << QRect(3, 3, 1, 1) << false;
        QTest::newRow("end of a line") << opaque << QRect(9, 4, 1, 1) << false;
        QTest::newRow("start of the last line") << opaque << QRect(3, 6, 1, 1) << false;
        QTest::newRow("end of the last line") << opaque << QRect(9, 6, 1, 1) << false;
        QTest::newRow("first line") << opaque << QRect(3, 2, 7, 1) << false;
        QTest::newRow("last line") << opaque << QRect(3, 6, 7, 1) << false;
        QTest::newRow("first column") << opaque << QRect(3, 2, 1, 5) << false;
        QTest::newRow("last column") << opaque << QRect(9, 2, 1, 5) << false;
        QTest::newRow("almost opaque") << QColor(69, 69, 69, 254) << none << false;
        QTest::newRow("half transparent") << QColor(69, 69, 69, 128) << none << false;
        QTest::newRow("transparent") << QColor(0, 0, 0, 0) << none << false;
    }

    void groundIsEvenInOneOpaqueColor()
    {
        QFETCH(QColor, color);
        QFETCH(QRect, otherPixels);
        QFETCH(bool, expected);
        QImage image(13, 9, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::red); // around the area
        const QRect area(3, 2, 7, 5);
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(area, color);
        painter.fillRect(otherPixels, Qt::blue);
        painter.end();
        QCOMPARE(orvane::isEven(image, area), expected);
    }

    void groundOfOnePixelIsEven()
    {
        QImage image = evenImage(QSize(3, 3));
        image.setPixel(2, 1, qRgb(1, 2, 3));
        QVERIFY(orvane::isEven(image, QRect(1, 1, 1, 1)));
    }

    void evenGroundIsFoundInTheImage_data()
    {
        QTest::addColumn<QImage>("image");
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<QSize>("area");
        QTest::addColumn<QRect>("place");
        QTest::addColumn<int>("scale");
        const QSize small(8, 7);
        QTest::newRow("in the middle")
            << evenImage(QSize(20, 20)) << QPoint(3, 5) << small << QRect(3, 5, 8, 7) << 1;
        QTest::newRow("whole image")
            << evenImage(small) << QPoint() << small << QRect(0, 0, 8, 7) << 1;
        QTest::newRow("may have alpha")
            << evenImage(QSize(20, 20), 1, QImage::Format_ARGB32_Premultiplied) << QPoint(3, 5)
            << small << QRect(3, 5, 8, 7) << 1;
        QTest::newRow("twice as fine")
            << evenImage(QSize(20, 20), 2) << QPoint(3, 5) << small << QRect(6, 10, 16, 14) << 2;
        QTest::newRow("largest") << evenImage(QSize(256, 256)) << QPoint() << QSize(256, 256)
                                 << QRect(0, 0, 256, 256) << 1;
        QTest::newRow("largest, broad") << evenImage(QSize(600, 200)) << QPoint(9, 9)
                                        << QSize(512, 128) << QRect(9, 9, 512, 128) << 1;
        QTest::newRow("largest, twice as fine") << evenImage(QSize(128, 128), 2) << QPoint()
                                                << QSize(128, 128) << QRect(0, 0, 256, 256) << 2;
    }

    void evenGroundIsFoundInTheImage()
    {
        QFETCH(QImage, image);
        QFETCH(QPoint, offset);
        QFETCH(QSize, area);
        QPainter painter(&image);
        painter.translate(offset);
        const Ground ground = orvane::groundUnder(painter, area);
        QCOMPARE(ground.image, &image);
        QTEST(ground.place, "place");
        QTEST(ground.scale, "scale");
    }

    void otherGroundsAreNone_data()
    {
        QTest::addColumn<QImage>("image");
        QTest::addColumn<QSize>("area");
        QTest::addColumn<Setup>("setup");
        const QSize small(8, 7);
        const QSize size(20, 20);
        const Setup nothing = [](QPainter &) {};
        const auto moved = [](qreal dx, qreal dy) -> Setup {
            return [=](QPainter &painter) { painter.translate(dx, dy); };
        };
        const auto scaled = [](qreal x, qreal y) -> Setup {
            return [=](QPainter &painter) { painter.scale(x, y); };
        };
        const auto hint = [](QPainter::RenderHint hint, bool on) -> Setup {
            return [=](QPainter &painter) { painter.setRenderHint(hint, on); };
        };
        const auto format = [&](const char *name, QImage::Format format) {
            QTest::newRow(name) << evenImage(size, 1, format) << small << nothing;
        };
        format("ARGB, not premultiplied", QImage::Format_ARGB32);
        format("RGBA in bytes", QImage::Format_RGBA8888_Premultiplied);
        format("ten bits a colour", QImage::Format_RGB30);
        format("sixteen bits", QImage::Format_RGB16);
        format("three bytes", QImage::Format_RGB888);

        QTest::newRow("enlarged by a fraction") << evenImage(size) << small << scaled(1.5, 1.5);
        QTest::newRow("mirrored") << evenImage(size) << small << Setup([](QPainter &painter) {
            painter.translate(15, 0);
            painter.scale(-1, 1);
        });
        QTest::newRow("turned") << evenImage(size) << small << Setup([](QPainter &painter) {
            painter.translate(15, 0);
            painter.rotate(90);
        });
        QTest::newRow("between columns") << evenImage(size) << small << moved(3.5, 5);
        QTest::newRow("between lines") << evenImage(size) << small << moved(3, 5.5);
        QTest::newRow("between fine pixels") << evenImage(size, 2) << small << moved(3.25, 5);

        QTest::newRow("nothing") << evenImage(size) << QSize(0, 0) << nothing;
        QTest::newRow("no height") << evenImage(size) << QSize(8, 0) << nothing;
        QTest::newRow("too broad") << evenImage(QSize(300, 300)) << QSize(257, 256) << nothing;
        QTest::newRow("too high") << evenImage(QSize(300, 300)) << QSize(256, 257) << nothing;
        QTest::newRow("too fine") << evenImage(QSize(150, 150), 2) << QSize(129, 128) << nothing;

        QTest::newRow("smooth lines")
            << evenImage(size) << small << hint(QPainter::Antialiasing, true);
        QTest::newRow("smooth pictures")
            << evenImage(size) << small << hint(QPainter::SmoothPixmapTransform, true);
        QTest::newRow("sharp letters")
            << evenImage(size) << small << hint(QPainter::TextAntialiasing, false);
        QTest::newRow("composed otherwise")
            << evenImage(size) << small << Setup([](QPainter &painter) {
                   painter.setCompositionMode(QPainter::CompositionMode_Source);
               });

        QTest::newRow("over the right edge") << evenImage(size) << small << moved(13, 5);
        QTest::newRow("over the bottom edge") << evenImage(size) << small << moved(3, 14);
        QTest::newRow("over the left edge") << evenImage(size) << small << moved(-1, 5);
        QTest::newRow("over the top edge") << evenImage(size) << small << moved(3, -1);
        QImage uneven = evenImage(size);
        uneven.setPixel(7, 6, qRgb(70, 69, 69));
        QTest::newRow("uneven") << uneven << small << nothing;
        QImage translucent = evenImage(size, 1, QImage::Format_ARGB32_Premultiplied);
        translucent.fill(QColor(69, 69, 69, 128));
        QTest::newRow("half transparent") << translucent << small << nothing;
    }

    void otherGroundsAreNone()
    {
        QFETCH(QImage, image);
        QFETCH(QSize, area);
        QFETCH(Setup, setup);
        QPainter painter(&image);
        setup(painter);
        const Ground ground = orvane::groundUnder(painter, area);
        QVERIFY(!ground.image);
        QVERIFY(ground.place.isNull());
        QCOMPARE(ground.scale, 0);
    }

    void otherDevicesHaveNoGround_data()
    {
        QTest::addColumn<int>("device");
        QTest::addColumn<int>("engine");
        QTest::addColumn<bool>("isFound");
        const int image = QInternal::Image;
        const int raster = QPaintEngine::Raster;
        QTest::newRow("pixels of an image") << image << raster << true;
        QTest::newRow("an image, not its pixels") << image << int(QPaintEngine::User) << false;
        QTest::newRow("pixels of no image") << int(QInternal::CustomRaster) << raster << false;
    }

    void otherDevicesHaveNoGround()
    {
        QFETCH(int, device);
        QFETCH(int, engine);
        OddImage image{QInternal::PaintDeviceFlags(device), QPaintEngine::Type(engine)};
        const QPainter painter(&image);
        QTEST(orvane::groundUnder(painter, QSize(8, 7)).image == &image, "isFound");
    }

    void groundIsFoundInAPixmapToo()
    {
        QPixmap pixmap(20, 20);
        pixmap.fill(Qt::black);
        QPainter painter(&pixmap);
        painter.translate(3, 5);
        const Ground ground = orvane::groundUnder(painter, QSize(8, 7));
        QVERIFY(ground.image);
        QCOMPARE(ground.image->size(), QSize(20, 20));
        QCOMPARE(ground.place, QRect(3, 5, 8, 7));
    }

    void pictureOfStepsHasNoGround()
    {
        QPicture picture;
        const QPainter painter(&picture);
        QVERIFY(!orvane::groundUnder(painter, QSize(8, 7)).image);
    }

    void lookIsWhatThePixelsDependOn()
    {
        QImage image = evenImage(QSize(120, 100), 2, QImage::Format_ARGB32_Premultiplied);
        image.setPixel(39, 30, qRgb(1, 2, 3)); // beside the button
        image.setDotsPerMeterY(5669);
        ButtonPainter painter(&image);
        painter.setLayoutDirection(Qt::RightToLeft);
        QFont font = buttonFont();
        font.setBold(true);
        painter.setFont(font);

        const Look look = orvane::lookOf(face(), painter, {&image, QRect(40, 30, 160, 140), 2});
        QCOMPARE(look.face.size, QSize(192, 108));
        QCOMPARE(look.face.count, 3);
        QCOMPARE(look.format, QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(look.ground, qRgb(69, 69, 69));
        QCOMPARE(look.scale, 2);
        QVERIFY(look.isInside);
        QCOMPARE(look.font, font);
        QCOMPARE(look.dpi, 144);
        QCOMPARE(look.direction, Qt::RightToLeft);
    }

    // Letters at the edge of an image are blended in another way: one pixel has to lie around.
    void insideIsAPixelFromEachEdge_data()
    {
        QTest::addColumn<QMargins>("margins");
        QTest::addColumn<bool>("expected");
        QTest::newRow("one around") << QMargins(1, 1, 1, 1) << true;
        QTest::newRow("many around") << QMargins(9, 9, 9, 9) << true;
        QTest::newRow("none at the left") << QMargins(0, 9, 9, 9) << false;
        QTest::newRow("none above") << QMargins(9, 0, 9, 9) << false;
        QTest::newRow("none at the right") << QMargins(9, 9, 0, 9) << false;
        QTest::newRow("none below") << QMargins(9, 9, 9, 0) << false;
        QTest::newRow("one at the left") << QMargins(1, 9, 9, 9) << true;
        QTest::newRow("one above") << QMargins(9, 1, 9, 9) << true;
        QTest::newRow("one at the right") << QMargins(9, 9, 1, 9) << true;
        QTest::newRow("one below") << QMargins(9, 9, 9, 1) << true;
        QTest::newRow("none around") << QMargins() << false;
    }

    void insideIsAPixelFromEachEdge()
    {
        QFETCH(QMargins, margins);
        QImage image = evenImage(
            QSize(80 + margins.left() + margins.right(), 70 + margins.top() + margins.bottom()));
        const ButtonPainter painter(&image, QRect(margins.left(), margins.top(), 80, 70));
        const Ground ground = orvane::groundUnder(painter, QSize(80, 70));
        QVERIFY(ground.image);
        QTEST(orvane::lookOf(face(), painter, ground).isInside, "expected");
    }

    void looksDifferByAnyOfTheirParts()
    {
        const Look look = lookOf(face());
        QVERIFY(look == lookOf(face()));
        const QVector<std::function<void(Look &)>> changes = {
            [](Look &other) { other.face.isModel = true; },
            [](Look &other) { other.face.area.setWidth(81); },
            [](Look &other) { other.face.rectangle.moveTop(6); },
            [](Look &other) { other.face.size.setHeight(109); },
            [](Look &other) { other.face.count = 4; },
            [](Look &other) { other.face.hasCount = false; },
            [](Look &other) { other.face.font.setBold(true); },
            [](Look &other) { other.format = QImage::Format_ARGB32_Premultiplied; },
            [](Look &other) { other.ground = qRgb(69, 69, 70); },
            [](Look &other) { other.scale = 2; },
            [](Look &other) { other.isInside = false; },
            [](Look &other) { other.font.setBold(true); },
            [](Look &other) { other.dpi = 97; },
            [](Look &other) { other.direction = Qt::RightToLeft; },
        };
        for (int i = 0; i < changes.size(); ++i) {
            Look other = look;
            changes.at(i)(other);
            QVERIFY2(!(look == other), qPrintable(QString("change %1").arg(i)));
            QVERIFY2(!(other == look), qPrintable(QString("change %1").arg(i)));
        }
    }

    // A wall has many cabinets that differ in nothing but their count or their size.
    void hashesDifferByWhatCabinetsMostOftenDifferIn()
    {
        QSet<uint> hashes;
        CabinetFace other = face();
        for (other.count = 0; other.count < 100; ++other.count)
            hashes.insert(qHash(lookOf(other), 0));
        QCOMPARE(hashes.size(), 100);

        const uint hash = qHash(lookOf(face()), 0);
        QCOMPARE(qHash(lookOf(face()), 0), hash);
        other = face();
        other.area.setWidth(81);
        QVERIFY(qHash(lookOf(other), 0) != hash);
        other = face();
        other.size.setWidth(193);
        QVERIFY(qHash(lookOf(other), 0) != hash);
        other = face();
        other.size.setHeight(109);
        QVERIFY(qHash(lookOf(other), 0) != hash);
    }

    void painterReachesAllThatNothingCutsOff()
    {
        QImage image = evenImage();
        const QRect place(20, 15, 80, 70);
        {
            const ButtonPainter painter(&image, place);
            QVERIFY(orvane::isWhole(painter, place));
            QVERIFY(orvane::isWhole(painter, place.adjusted(1, 1, -1, -1)));
            QVERIFY(!orvane::isWhole(painter, place.adjusted(-1, 0, 0, 0)));
            QVERIFY(!orvane::isWhole(painter, place.adjusted(0, 0, 0, 1)));
        }
        ButtonPainter painter(&image, place);
        painter.setClipRect(0, 0, 80, 70);
        QVERIFY(!orvane::isWhole(painter, place));
        painter.setClipping(false);
        QVERIFY(orvane::isWhole(painter, place));
    }

    void pictureIsThePieceOfTheImage()
    {
        QImage image = evenImage(QSize(10, 10), 2, QImage::Format_ARGB32_Premultiplied);
        image.setPixel(4, 6, qRgb(255, 0, 0));
        image.setPixel(9, 13, qRgb(0, 255, 0));
        const QImage picture = orvane::pictureOf({&image, QRect(4, 6, 6, 8), 2});
        QImage expected(6, 8, QImage::Format_RGB32);
        expected.setDevicePixelRatio(2);
        expected.fill(groundColor);
        expected.setPixel(0, 0, qRgb(255, 0, 0));
        expected.setPixel(5, 7, qRgb(0, 255, 0));
        QCOMPARE(picture.format(), QImage::Format_RGB32);
        QCOMPARE(picture, expected);

        // Where the painter enlarges, and not the device
        image.setDevicePixelRatio(1);
        QCOMPARE(orvane::pictureOf({&image, QRect(4, 6, 6, 8), 2}), expected);
    }

    void cabinetIsPaintedAlikeFirstAndLater_data()
    {
        QTest::addColumn<bool>("isModel");
        QTest::addColumn<bool>("hasCount");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("ratio");
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        for (const bool isModel : {false, true}) {
            const QByteArray kind = isModel ? "model" : "button";
            const auto add = [&](const char *name, bool hasCount, QSize size, const char *text,
                                 int ratio = 1, QImage::Format format = QImage::Format_RGB32,
                                 Qt::LayoutDirection direction = Qt::LeftToRight) {
                QTest::newRow(kind + ", " + name)
                    << isModel << hasCount << size << text << ratio << format << direction;
            };
            const QSize size(192, 108);
            add("with a count", true, size, "192x108");
            add("without a count", false, size, "192x108");
            add("empty", true, QSize(0, 0), "0x0");
            add("empty without a count", false, QSize(192, 0), "192x0");
            add("twice as fine", true, size, "192x108", 2);
            add("with alpha", true, size, "192x108", 1, QImage::Format_ARGB32_Premultiplied);
            add("from right to left", true, size, "192x108", 1, QImage::Format_RGB32,
                Qt::RightToLeft);
        }
    }

    void cabinetIsPaintedAlikeFirstAndLater()
    {
        QFETCH(bool, isModel);
        QFETCH(bool, hasCount);
        QFETCH(QSize, size);
        QFETCH(QString, text);
        QFETCH(int, ratio);
        QFETCH(QImage::Format, format);
        QFETCH(Qt::LayoutDirection, direction);
        CabinetFace face = ::face(isModel);
        face.hasCount = hasCount;
        face.size = size;
        QImage image = evenImage(QSize(120, 100), ratio, format);
        QImage expected = paintedByHand(image, face, text, direction);
        QVERIFY(expected != image);

        forgetPictures();
        QCOMPARE(painted(image, face, buttonPlace, direction), expected);
        QCOMPARE(Pictures::all().size(), 1);
        QCOMPARE(Pictures::all().totalCost(), 80 * 70 * 4 * ratio * ratio);
        QCOMPARE(painted(image, face, buttonPlace, direction), expected);
        QCOMPARE(Pictures::all().size(), 1);

        // On an uneven ground, where it is painted each time, with the count that goes with it
        forgetPictures();
        const QPoint corner = buttonPlace.topLeft() * ratio;
        image.setPixel(corner, qRgb(1, 2, 3));
        expected.setPixel(corner, qRgb(1, 2, 3));
        QCOMPARE(painted(image, face, buttonPlace, direction), expected);
        QCOMPARE(Pictures::all().size(), 0);
    }

    void cabinetOfAnEnlargingPainterIsPaintedAlikeFirstAndLater()
    {
        forgetPictures();
        const auto enlarged = [] {
            QImage image = evenImage(QSize(240, 200));
            ButtonPainter painter(&image, buttonPlace, 2);
            orvane::paintCabinet(painter, face());
            painter.end();
            return image;
        };
        const QImage first = enlarged();
        QVERIFY(first != evenImage(QSize(240, 200)));
        QCOMPARE(Pictures::all().totalCost(), 80 * 70 * 4 * 2 * 2);
        QCOMPARE(enlarged(), first);
        QCOMPARE(Pictures::all().size(), 1);
    }

    void keptPictureIsCopiedToItsPlace_data()
    {
        QTest::addColumn<int>("ratio");
        QTest::newRow("once") << 1;
        QTest::newRow("twice as fine") << 2;
    }

    void keptPictureIsCopiedToItsPlace()
    {
        QFETCH(int, ratio);
        forgetPictures();
        QImage image = evenImage(QSize(120, 100), ratio);
        ButtonPainter painter(&image);
        const QRect place(20 * ratio, 15 * ratio, 80 * ratio, 70 * ratio);
        const Look look = orvane::lookOf(face(), painter, {&image, place, ratio});
        auto *picture = new QImage(QSize(80, 70) * ratio, QImage::Format_RGB32);
        picture->setDevicePixelRatio(ratio);
        picture->fill(Qt::red);
        picture->setPixel(0, 0, qRgb(0, 0, 255));
        Pictures::all().insert(look, picture, 1);
        orvane::paintCabinet(painter, face());
        painter.end();

        QImage expected = evenImage(QSize(120, 100), ratio);
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x)
                expected.setPixel(x, y, qRgb(255, 0, 0));
        }
        expected.setPixel(place.topLeft(), qRgb(0, 0, 255));
        QCOMPARE(image, expected);
        QCOMPARE(Pictures::all().totalCost(), 1); // nothing was kept in its place
    }

    void pictureOfACutCabinetIsNotKept()
    {
        forgetPictures();
        QImage image = evenImage();
        {
            ButtonPainter painter(&image);
            painter.setClipRect(0, 0, 40, 70);
            orvane::paintCabinet(painter, face());
        }
        QCOMPARE(Pictures::all().size(), 0);
        image = evenImage();
        {
            ButtonPainter painter(&image, QRect(20, 15, 79, 70));
            orvane::paintCabinet(painter, face());
        }
        QCOMPARE(Pictures::all().size(), 0);
        const QImage whole = painted(evenImage(), face());
        QCOMPARE(Pictures::all().size(), 1);

        // but the one that is kept is copied to what is left of another
        image = evenImage();
        {
            ButtonPainter painter(&image);
            painter.setClipRect(0, 0, 40, 70);
            orvane::paintCabinet(painter, face());
        }
        QImage expected = evenImage();
        QPainter painter(&expected);
        painter.drawImage(20, 15, whole, 20, 15, 40, 70);
        painter.end();
        QCOMPARE(image, expected);
    }

    // Its letters reach over the button, and there the edge of the image cuts some of them.
    void narrowCabinetAtAnEdgeHasItsOwnPicture()
    {
        CabinetFace narrow = face();
        narrow.area = QSize(30, 70);
        narrow.rectangle = QRect(2, 5, 26, 40);
        const QRect inside(1, 1, 30, 70);
        const QRect atEdges(0, 0, 30, 70);
        forgetPictures();
        const QImage expectedInside = painted(evenImage(QSize(32, 72)), narrow, inside);
        forgetPictures();
        const QImage expectedAtEdges = painted(evenImage(QSize(30, 70)), narrow, atEdges);
        QCOMPARE(painted(evenImage(QSize(32, 72)), narrow, inside), expectedInside);
        QCOMPARE(Pictures::all().size(), 2);
        QCOMPARE(painted(evenImage(QSize(30, 70)), narrow, atEdges), expectedAtEdges);
        QCOMPARE(painted(evenImage(QSize(32, 72)), narrow, inside), expectedInside);
        QCOMPARE(Pictures::all().size(), 2);
    }

    void picturesTakeFourMebibytes()
    {
        forgetPictures();
        QCOMPARE(Pictures::all().maxCost(), 4194304);
        CabinetFace largest = face();
        largest.area = QSize(256, 256);
        for (largest.count = 1; largest.count <= 17; ++largest.count) {
            painted(evenImage(QSize(256, 256)), largest, QRect(0, 0, 256, 256));
            QCOMPARE(Pictures::all().size(), qMin(largest.count, 16));
        }
        QCOMPARE(Pictures::all().totalCost(), 4194304);
    }

    void picturesAreForgottenWithTheFonts()
    {
        forgetPictures();
        painted(evenImage(), face());
        QCOMPARE(Pictures::all().size(), 1);
        Q_EMIT qGuiApp->fontDatabaseChanged();
        QCOMPARE(Pictures::all().size(), 0);
    }

    void picturesGoWithTheApplication()
    {
        forgetPictures();
        const QImage expected = painted(evenImage(), face());
        QObjectList found;
        for (QObject *child : qGuiApp->children()) {
            if (dynamic_cast<Pictures *>(child))
                found << child;
        }
        QCOMPARE(found.size(), 1);
        delete found.first();
        QCOMPARE(Pictures::all().size(), 0);
        QCOMPARE(painted(evenImage(), face()), expected);
        QCOMPARE(Pictures::all().size(), 1);
    }
};

ORVANE_TEST_MAIN(TestCabinetPainter)
#include "tst_cabinetpainter.moc"
