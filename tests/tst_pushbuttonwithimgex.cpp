#include "support/pointer.h"
#include "support/testcase.h"

#include <internal/pushbuttonwithimgex.h>

namespace
{

// What Qt says at the first paint of a widget with attribute 62.
const QString firstPaint = "QWidget::repaint: Recursive repaint detected";

} // namespace

class TestPushButtonWithImgEx : public TestCase
{
    Q_OBJECT

private:
    QString picture(const QString &name, const QColor &left, const QColor &right)
    {
        const QString path = m_directory.filePath(name);
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(left);
        QPainter(&image).fillRect(10, 0, 10, 20, right);
        return image.save(path) ? path : QString();
    }

    QTemporaryDir m_directory;
    QString m_first;
    QString m_second;

private Q_SLOTS:
    void initTestCase()
    {
        m_first = picture("first.png", Qt::red, Qt::blue);
        m_second = picture("second.png", Qt::green, Qt::white);
        QVERIFY(!m_first.isEmpty() && !m_second.isEmpty());
    }

    void keepsBothPaths()
    {
        const PushButtonWithImgEx button("a", "b", nullptr);
        QCOMPARE(button.firstImagePath(), QString("a"));
        QCOMPARE(button.secondImagePath(), QString("b"));
        QVERIFY(button.testAttribute(static_cast<Qt::WidgetAttribute>(62)));
        QCOMPARE(QByteArray(button.metaObject()->className()), QByteArray("PushButtonWithImgEx"));
        QCOMPARE(QByteArray(button.metaObject()->superClass()->className()),
                 QByteArray("QPushButton"));
    }

    void pictureFillsTheWholeButton()
    {
        QWidget window;
        PushButtonWithImgEx button(m_first, m_second, &window);
        button.setGeometry(10, 10, 80, 60);
        button.setText(QString(9, QChar(0x2588)));
        expectWarning(firstPaint);
        QVERIFY(pointer::showAndWait(&window));
        QTRY_VERIFY(!button.testAttribute(static_cast<Qt::WidgetAttribute>(62)));
        // To the edges, without frame or text.
        for (const int y : {0, 30, 59}) {
            QCOMPARE(pointer::colorAt(&button, QPoint(0, y)), QColor(Qt::red));
            QCOMPARE(pointer::colorAt(&button, QPoint(35, y)), QColor(Qt::red));
            QCOMPARE(pointer::colorAt(&button, QPoint(45, y)), QColor(Qt::blue));
            QCOMPARE(pointer::colorAt(&button, QPoint(79, y)), QColor(Qt::blue));
        }
    }

    void secondPictureShowsWhileTheButtonIsHeldDown()
    {
        PushButtonWithImgEx button(m_first, m_second, nullptr);
        button.resize(80, 60);
        expectWarning(firstPaint);
        QVERIFY(pointer::showAndWait(&button));
        QCOMPARE(pointer::colorAt(&button, QPoint(5, 5)), QColor(Qt::red));
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(pointer::colorAt(&button, QPoint(5, 5)), QColor(Qt::green));
        QTest::mouseMove(&button, QPoint(-200, -200));
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(pointer::colorAt(&button, QPoint(5, 5)), QColor(Qt::red));
    }

    void pictureStaysWithoutASecondOne()
    {
        PushButtonWithImgEx button(m_first, QString(), nullptr);
        button.resize(80, 60);
        expectWarning(firstPaint);
        QVERIFY(pointer::showAndWait(&button));
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(pointer::colorAt(&button, QPoint(5, 5)), QColor(Qt::red));
        QTest::mouseRelease(&button, Qt::LeftButton);
    }

    void missingPictureDrawsNothing()
    {
        QWidget window;
        window.setStyleSheet("QWidget{background:#123456;}");
        PushButtonWithImgEx button("/does/not/exist.png", QString(), &window);
        button.setGeometry(0, 0, 80, 60);
        expectWarning(firstPaint);
        QVERIFY(pointer::showAndWait(&window));
        QTRY_COMPARE(pointer::colorAt(&window, QPoint(5, 5)), QColor("#123456"));
    }

    void pressAndReleaseRepaint()
    {
        struct Counting : PushButtonWithImgEx {
            using PushButtonWithImgEx::PushButtonWithImgEx;
            int paints = 0;
            void paintEvent(QPaintEvent *event) override
            {
                ++paints;
                PushButtonWithImgEx::paintEvent(event);
            }
        };
        Counting button(m_first, m_second, nullptr);
        expectWarning(firstPaint);
        QVERIFY(pointer::showAndWait(&button));
        QTRY_VERIFY(button.paints > 0);
        QCoreApplication::processEvents();
        button.paints = 0;
        QTest::mousePress(&button, Qt::LeftButton);
        QTRY_COMPARE(button.paints, 1);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QTRY_COMPARE(button.paints, 2);
    }

    void canBeDeletedInItsOwnSignals_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::newRow("pressed") << QByteArray(SIGNAL(pressed()));
        QTest::newRow("released") << QByteArray(SIGNAL(released()));
        QTest::newRow("clicked") << QByteArray(SIGNAL(clicked()));
    }

    void canBeDeletedInItsOwnSignals()
    {
        QFETCH(QByteArray, signal);
        m_toDelete = new PushButtonWithImgEx(m_first, m_second, nullptr);
        expectWarning(firstPaint);
        QVERIFY(pointer::showAndWait(m_toDelete));
        connect(m_toDelete, signal, this, SLOT(deleteNow()));
        // The window is asked, since the button may be gone before the release.
        const QPointer<QWindow> window = m_toDelete->windowHandle();
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        if (window)
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QVERIFY(m_toDelete.isNull());
    }

public Q_SLOTS:
    void deleteNow() { delete m_toDelete; }

private:
    QPointer<PushButtonWithImgEx> m_toDelete;
};

ORVANE_TEST_MAIN(TestPushButtonWithImgEx)
#include "tst_pushbuttonwithimgex.moc"
