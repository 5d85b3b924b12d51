#include "support/testcase.h"

#include <definecommondata.h>

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QVector>

#include <algorithm>

namespace
{

const QString root = QStringLiteral(":/Resource/Images/globalResource/");
const QString animation = QStringLiteral("listwidget/Loading_2.gif");
constexpr int lastPort = 16;

const QStringList directories = {"addBtn",     "addCabinetRow", "arrow",       "checkbox",
                                 "combBox",    "drawer",        "dropDown",    "enterBtn",
                                 "listwidget", "messageBox",    "radiobutton", "scrollbar",
                                 "spinbox",    "tableWidget",   "tabwidget",   "titletbarbutton",
                                 "toolbutton", "triggleBtn",    "vSender"};

/// Pictures of one size in one directory: every stem with every ending.
struct Group {
    QString directory;
    QSize size;
    QStringList stems;
    QStringList endings = {""};
};

const QStringList hoverNormalPressed = {"hover", "normal", "pressed"};
const QStringList normalPressed = {"normal", "pressed"};
const QStringList fourStates = {"disabled", "hover", "normal", "pressed"};

const QVector<Group> groups = {
    {"addBtn", {80, 80}, {"ADD_"}, hoverNormalPressed},
    {"addBtn", {40, 40}, {"box-add_"}, {"disable", "normal"}},
    {"addBtn", {80, 80}, {"box-add_"}, {"disableDouble", "normalDouble"}},
    {"addCabinetRow", {40, 40}, {"row_"}, {"disable", "normalSmall"}},
    {"addCabinetRow",
     {80, 80},
     {"row_"},
     {"disableDouble", "hover", "normal", "normalDouble", "pressed"}},
    {"arrow", {32, 32}, {"btn_L", "btn_R"}},
    {"arrow", {16, 16}, {"btn_L_", "btn_R_"}, {"disable", "hover", "normal", "pressed"}},
    {"arrow",
     {32, 32},
     {"btn_L_", "btn_R_"},
     {"disableDouble", "hoverDouble", "normalDouble", "pressedDouble"}},
    {"checkbox",
     {32, 32},
     {"checkbox_checked_hover", "checkbox_normal", "checkbox_pressed", "checkbox_unchecked_hover",
      "checked_disabled"}},
    {"combBox", {16, 6}, {"combBox_"}, {"disabled", "down", "normal"}},
    {"combBox", {15, 5}, {"toolBarComboBox_"}, {"down", "normal"}},
    {"drawer", {30, 30}, {"btn_Port_", "btn_coaxial_"}, {"normal", "pressed", "disabled"}},
    {"drawer", {40, 74}, {"netport", "coaxial"}},
    {"drawer", {25, 25}, {"btn_open_", "btn_close_"}, {"normal", "hover", "Pressed"}},
    {"drawer", {10, 10}, {"open", "close"}},
    {"drawer", {16, 16}, {"btn_Left_", "btn_Right_"}, normalPressed},
    {"drawer",
     {32, 32},
     {"checkbox_normal", "checkbox_pressed", "checkbox_checked_hover", "checkbox_unchecked_hover",
      "checked_disabled_hover", "unchecked_hover"}},
    {"drawer", {16, 16}, {"CheckBox_check", "CheckBox_uncheck"}},
    {"drawer", {32, 32}, {"CheckBox_partCheck"}, {"", "_hover", "_diabled"}},
    {"drawer", {86, 84}, {"delete_"}, normalPressed},
    {"drawer", {20, 20}, {"delete_disabled"}},
    {"drawer", {20, 20}, {"settings_"}, normalPressed},
    {"drawer", {43, 42}, {"btn_settings_pressed"}},
    {"drawer", {86, 84}, {"btn_settings_pressedDouble"}},
    {"drawer", {62, 84}, {"btn_settings_pressed@2x"}},
    {"dropDown", {54, 20}, {"dropDown"}},
    {"enterBtn", {32, 32}, {"btn_settings_guide_"}, hoverNormalPressed},
    {"listwidget",
     {28, 28},
     {"btn_fold_", "btn_unfold_", "btn_refresh_guide_", "btn_settings_guide_"},
     hoverNormalPressed},
    {"listwidget", {36, 36}, {"pathWarning"}},
    {"listwidget", {34, 34}, {"trash_"}, hoverNormalPressed},
    {"messageBox", {40, 40}, {"error", "information", "question", "waring"}},
    {"radiobutton", {16, 16}, {"checked", "unchecked"}},
    {"radiobutton",
     {32, 32},
     {"disabled_checked", "disabled_unchecked", "radiobutton_check", "radiobutton_check_hover",
      "radiobutton_uncheck", "radiobutton_uncheck_hover"}},
    {"scrollbar", {16, 16}, {"down_", "left_", "right_", "up_"}, normalPressed},
    {"spinbox", {23, 10}, {"down_", "up_"}, fourStates},
    {"tableWidget", {16, 16}, {"check", "unchecked"}},
    {"tabwidget", {40, 40}, {"add_"}, hoverNormalPressed},
    {"tabwidget", {24, 24}, {"tab_closed_"}, hoverNormalPressed},
    {"tabwidget", {46, 60}, {"tab_left_", "tab_right_"}, hoverNormalPressed},
    {"titletbarbutton",
     {30, 20},
     {"btn_close_", "btn_max_", "btn_mix_", "btn_return_"},
     hoverNormalPressed},
    {"toolbutton", {74, 74}, {"add_"}, normalPressed},
    {"toolbutton", {32, 32}, {"cabinetchanged"}},
    {"toolbutton", {21, 21}, {"cursor"}},
    {"toolbutton", {21, 20}, {"mouseAdd"}},
    {"triggleBtn", {20, 8}, {"triggleBtn"}},
    {"vSender", {42, 33}, {"clear"}},
    {"vSender", {40, 30}, {"save"}},
    {"vSender", {84, 66}, {"template_clear_drag"}},
};

QString portPath(const QString &kind, const QString &state, int number)
{
    return QStringLiteral("drawer/btn_%1_%2_%3.png").arg(kind, state).arg(number);
}

const QStringList portKinds = {"Port", "coaxial"};

/// Every PNG of the collection with its size.
QMap<QString, QSize> expectedPictures()
{
    QMap<QString, QSize> pictures;
    for (const Group &group : groups) {
        for (const QString &stem : group.stems) {
            for (const QString &ending : group.endings)
                pictures.insert(group.directory + '/' + stem + ending + ".png", group.size);
        }
    }
    for (const QString &kind : portKinds) {
        for (const QString &state : fourStates) {
            for (int number = 1; number <= lastPort; ++number)
                pictures.insert(portPath(kind, state, number), {60, 60});
        }
    }
    return pictures;
}

/// The picture as it appears on its ground, at its size on the screen.
QImage shown(const QString &path, QSize size, int ground)
{
    const QImage picture = QImage(root + path).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QImage result(size, QImage::Format_RGB32);
    result.fill(QColor(ground, ground, ground));
    QPainter painter(&result);
    painter.drawImage(0, 0, picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return result;
}

/// The greatest difference of a colour channel, alpha included.
int colourDistance(QRgb a, QRgb b)
{
    return std::max({qAbs(qRed(a) - qRed(b)), qAbs(qGreen(a) - qGreen(b)),
                     qAbs(qBlue(a) - qBlue(b)), qAbs(qAlpha(a) - qAlpha(b))});
}

/// The difference of the two over all their pixels.
double meanDifference(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            sum += colourDistance(a.pixel(x, y), b.pixel(x, y));
    }
    return sum / (a.width() * a.height());
}

/// How many of a hundred pixels differ clearly.
double visibleDifference(const QImage &a, const QImage &b)
{
    constexpr int clear = 40;
    int different = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            different += colourDistance(a.pixel(x, y), b.pixel(x, y)) >= clear;
    }
    return 100.0 * different / (a.width() * a.height());
}

int drawnPixels(const QImage &picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += qAlpha(picture.pixel(x, y)) > 100;
    }
    return count;
}

/// The smallest rectangle that holds all pixels in which the two differ.
QRect differingRect(const QImage &a, const QImage &b)
{
    QRect rect;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                rect |= QRect(x, y, 1, 1);
        }
    }
    return rect;
}

QStringList collectionEntries()
{
    QFile collection(QFINDTESTDATA(
        "../src/libs/orvanecontrols/Resource/Images/globalResource/globalResource.qrc"));
    if (!collection.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(collection.readAll());
    QStringList entries;
    auto match = QRegularExpression("<file>([^<]*)</file>").globalMatch(text);
    while (match.hasNext())
        entries.append(match.next().captured(1));
    return entries;
}

} // namespace

class TestImages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Loading the library registers the images; this call ties the program to it.
        QVERIFY(!DefineCommonData::getNormalFont().isEmpty());
    }

    void everyPictureHasItsSize_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QSize>("size");
        const QMap<QString, QSize> pictures = expectedPictures();
        QCOMPARE(pictures.size(), 292);
        for (auto it = pictures.begin(); it != pictures.end(); ++it)
            QTest::newRow(qPrintable(it.key())) << it.key() << it.value();
    }

    void everyPictureHasItsSize()
    {
        QFETCH(QString, path);
        QFETCH(QSize, size);
        QImageReader reader(root + path);
        reader.setAutoDetectImageFormat(false);
        reader.setFormat("png");
        const QImage picture = reader.read();
        QVERIFY2(!picture.isNull(), qPrintable(reader.errorString()));
        QCOMPARE(picture.size(), size);
        QVERIFY(picture.hasAlphaChannel());
        QVERIFY2(drawnPixels(picture) > 0, "nothing is drawn");
    }

    void collectionHoldsNothingElse()
    {
        QSet<QString> found;
        QSet<QString> foundDirectories;
        QDirIterator it(root, QDir::Files | QDir::Dirs, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next().mid(root.size());
            (it.fileInfo().isDir() ? foundDirectories : found).insert(path);
        }
        const QStringList names = expectedPictures().keys() << animation;
        const QSet<QString> expected(names.begin(), names.end());
        QCOMPARE(expected.size(), 293);
        QCOMPARE(found - expected, QSet<QString>());
        QCOMPARE(expected - found, QSet<QString>());
        QCOMPARE(directories.size(), 19);
        QCOMPARE(foundDirectories, QSet<QString>(directories.begin(), directories.end()));
    }

    void collectionFileListsOnePictureTwice()
    {
        QStringList entries = collectionEntries();
        QCOMPARE(entries.size(), 294);
        QVERIFY(entries.removeOne("combBox/toolBarComboBox_normal.png"));
        QStringList expected = expectedPictures().keys() << animation;
        entries.sort();
        expected.sort();
        QCOMPARE(entries, expected);
    }

    void portsOutsideOneToSixteenHaveNoPicture()
    {
        for (const QString &kind : portKinds) {
            for (const QString &state : fourStates) {
                for (int number : {-1, 0, lastPort + 1, 100})
                    QVERIFY(!QFile::exists(root + portPath(kind, state, number)));
                QVERIFY(!QFile::exists(root + "drawer/btn_" + kind + '_' + state + "_01.png"));
            }
        }
    }

    void doubleIsTheSamePicture_data()
    {
        QTest::addColumn<QString>("single");
        QTest::addColumn<QString>("twofold");
        const QStringList names = expectedPictures().keys();
        int pairs = 0;
        for (const QString &name : names) {
            if (!name.endsWith("Double.png") || name.endsWith("row_normalDouble.png"))
                continue;
            QTest::newRow(qPrintable(name)) << QString(name).remove("Double") << name;
            ++pairs;
        }
        QCOMPARE(pairs, 12);
        QTest::newRow("small row") << "addCabinetRow/row_normalSmall.png"
                                   << "addCabinetRow/row_normal.png";
        QTest::newRow("left") << "arrow/btn_L_normal.png"
                              << "arrow/btn_L.png";
        QTest::newRow("right") << "arrow/btn_R_normal.png"
                               << "arrow/btn_R.png";
        QTest::newRow("sender") << "vSender/clear.png"
                                << "vSender/template_clear_drag.png";
    }

    void doubleIsTheSamePicture()
    {
        QFETCH(QString, single);
        QFETCH(QString, twofold);
        const QSize size = QImage(root + single).size();
        QCOMPARE(QImage(root + twofold).size(), size * 2);
        const double difference =
            visibleDifference(shown(single, size, 69), shown(twofold, size, 69));
        QVERIFY2(difference < 1.0, qPrintable(QString::number(difference)));
    }

    void normalRowIsItsOwnDouble()
    {
        QCOMPARE(QImage(root + "addCabinetRow/row_normalDouble.png"),
                 QImage(root + "addCabinetRow/row_normal.png"));
    }

    void statesAreToldApart_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("ground");
        QTest::addColumn<double>("least");
        double least = 10.0;
        const auto row = [&least](const QString &pattern, const QStringList &words, QSize size,
                                  int ground) {
            QStringList paths;
            for (const QString &word : words)
                paths.append(pattern.arg(word) + ".png");
            QTest::newRow(qPrintable(pattern)) << paths << size << ground << least;
        };
        row("addBtn/ADD_%1", hoverNormalPressed, {40, 40}, 62);
        row("addBtn/box-add_%1", {"disable", "normal"}, {40, 40}, 62);
        row("addCabinetRow/row_%1", {"disable", "hover", "normal", "pressed"}, {40, 40}, 62);
        for (const char *side : {"L", "R"})
            row(QString("arrow/btn_%1_").arg(side) + "%1",
                {"disable", "hover", "normal", "pressed"}, {16, 16}, 69);
        row("checkbox/%1",
            {"checkbox_checked_hover", "checkbox_normal", "checkbox_pressed",
             "checkbox_unchecked_hover", "checked_disabled"},
            {15, 15}, 69);
        row("combBox/combBox_%1", {"disabled", "down", "normal"}, {16, 6}, 69);
        row("combBox/toolBarComboBox_%1", {"down", "normal"}, {15, 5}, 69);
        for (const QString &kind : portKinds) {
            row("drawer/btn_" + kind + "_%1", {"normal", "pressed", "disabled"}, {30, 30}, 69);
            for (int number = 1; number <= lastPort; ++number)
                row("drawer/btn_" + kind + "_%1_" + QString::number(number), fourStates, {30, 30},
                    69);
        }
        row("drawer/btn_open_%1", {"normal", "hover", "Pressed"}, {10, 10}, 69);
        row("drawer/btn_close_%1", {"normal", "hover", "Pressed"}, {10, 10}, 69);
        row("drawer/btn_Left_%1", normalPressed, {16, 16}, 69);
        row("drawer/btn_Right_%1", normalPressed, {16, 16}, 69);
        row("drawer/%1",
            {"checkbox_normal", "checkbox_pressed", "checkbox_checked_hover",
             "checkbox_unchecked_hover", "checked_disabled_hover", "CheckBox_partCheck",
             "CheckBox_partCheck_hover", "CheckBox_partCheck_diabled"},
            {15, 15}, 69);
        row("drawer/CheckBox_%1", {"check", "uncheck"}, {16, 16}, 69);
        row("drawer/delete_%1", {"normal", "pressed", "disabled"}, {43, 42}, 99);
        row("drawer/settings_%1", normalPressed, {20, 20}, 69);
        row("enterBtn/btn_settings_guide_%1", hoverNormalPressed, {16, 16}, 245);
        for (const char *stem : {"fold", "unfold", "refresh_guide", "settings_guide"})
            row(QString("listwidget/btn_%1_").arg(stem) + "%1", hoverNormalPressed, {13, 13}, 225);
        row("listwidget/trash_%1", hoverNormalPressed, {17, 17}, 235);
        row("radiobutton/%1",
            {"disabled_checked", "disabled_unchecked", "radiobutton_check",
             "radiobutton_check_hover", "radiobutton_uncheck", "radiobutton_uncheck_hover"},
            {15, 15}, 69);
        row("radiobutton/%1", {"checked", "unchecked"}, {16, 16}, 69);
        for (const char *side : {"down", "left", "right", "up"})
            row(QString("scrollbar/%1_").arg(side) + "%1", normalPressed, {16, 16}, 79);
        row("spinbox/down_%1", fourStates, {23, 10}, 51);
        row("spinbox/up_%1", fourStates, {23, 10}, 51);
        row("tableWidget/%1", {"check", "unchecked"}, {16, 16}, 56);
        for (const char *stem : {"add", "tab_left", "tab_right", "tab_closed"})
            row(QString("tabwidget/%1_").arg(stem) + "%1", hoverNormalPressed, {20, 20}, 56);
        for (const char *stem : {"close", "max", "mix", "return"})
            row(QString("titletbarbutton/btn_%1_").arg(stem) + "%1", hoverNormalPressed, {30, 20},
                69);
        row("toolbutton/add_%1", normalPressed, {74, 74}, 69);

        // Not states but buttons side by side: thin strokes differ, not grounds.
        least = 4.0;
        row("drawer/btn_%1_normal", {"open", "close"}, {10, 10}, 69);
        row("drawer/%1", {"open", "close"}, {10, 10}, 56);
        row("listwidget/btn_%1_normal", {"fold", "unfold"}, {13, 13}, 225);
        row("messageBox/%1", {"error", "information", "question", "waring"}, {40, 40}, 69);
        row("titletbarbutton/btn_%1_normal", {"close", "max", "mix", "return"}, {30, 20}, 69);
        row("drawer/btn_%1_normal_1", portKinds, {30, 30}, 69);
        row("drawer/%1", {"netport", "coaxial"}, {40, 74}, 69);
        row("vSender/%1", {"clear", "save"}, {40, 30}, 69);
    }

    void statesAreToldApart()
    {
        QFETCH(QStringList, paths);
        QFETCH(QSize, size);
        QFETCH(int, ground);
        QFETCH(double, least);
        for (int i = 0; i < paths.size(); ++i) {
            for (int j = i + 1; j < paths.size(); ++j) {
                const double difference =
                    visibleDifference(shown(paths[i], size, ground), shown(paths[j], size, ground));
                QVERIFY2(difference >= least,
                         qPrintable(QString("%1 and %2 differ in %3 % of their pixels")
                                        .arg(paths[i], paths[j])
                                        .arg(difference)));
            }
        }
    }

    void everyPortShowsItsOwnNumber()
    {
        // On the screen a port button is 30 pixels wide, half its picture.
        const QRect inside(6, 6, 48, 48);
        constexpr int leastHeight = 20;
        for (const QString &kind : portKinds) {
            for (const QString &state : fourStates) {
                QVector<QImage> numbers;
                QRect digits;
                for (int number = 1; number <= lastPort; ++number) {
                    const QImage picture(root + portPath(kind, state, number));
                    for (const QImage &other : qAsConst(numbers)) {
                        QVERIFY(visibleDifference(picture, other) > 1.0);
                        digits |= differingRect(picture, other);
                    }
                    numbers.append(picture);
                }
                QVERIFY(inside.contains(digits));
                QVERIFY(digits.height() >= leastHeight);
            }
        }
    }

    void disabledCheckCoversTheCheckedOne()
    {
        // A sheet draws the disabled picture over the checked one, which must not show through.
        const QImage covering(root + "checkbox/checked_disabled.png");
        const QImage covered(root + "checkbox/checkbox_pressed.png");
        for (int y = 0; y < covered.height(); ++y) {
            for (int x = 0; x < covered.width(); ++x)
                QVERIFY(qAlpha(covering.pixel(x, y)) >= qAlpha(covered.pixel(x, y)));
        }
    }

    void animationTurnsForeverWithoutAJump()
    {
        QImageReader reader(root + animation);
        QCOMPARE(reader.format(), QByteArray("gif"));
        QCOMPARE(reader.loopCount(), -1);
        const int count = reader.imageCount();
        QVERIFY(count >= 12);

        QVector<QImage> frames;
        while (reader.canRead()) {
            // Premultiplied, because the colour of a transparent pixel says nothing.
            frames.append(reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied));
            QCOMPARE(frames.last().size(), frames.first().size());
            QCOMPARE(reader.nextImageDelay(), 40);
        }
        QCOMPARE(frames.size(), count);

        // Each step, the one from the last frame to the first included, changes about as much.
        QVector<double> steps;
        for (int i = 0; i < count; ++i)
            steps.append(meanDifference(frames[i], frames[(i + 1) % count]));
        const auto range = std::minmax_element(steps.begin(), steps.end());
        QVERIFY(*range.first > 0.0);
        QVERIFY2(*range.second < 2 * *range.first,
                 qPrintable(QString("%1 to %2").arg(*range.first).arg(*range.second)));
    }
};

ORVANE_TEST_MAIN(TestImages)
#include "tst_images.moc"
