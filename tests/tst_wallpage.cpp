#include "support/pointer.h"
#include "support/testcase.h"
#include "support/wallhost.h"
#include "support/windowmouse.h"
#include "wallpage/modelboard.h"
#include "wallpage/propertypanel.h"
#include "wallpage/senderpanel.h"
#include "wallpage/wallpage.h"

#include <labelex.h>
#include <sliderexmouse.h>
#include <toolbuttonex.h>

#include <QSignalSpy>

using namespace wall;

namespace
{

/// The page with a view that does nothing, shown at the smallest size that it is made for.
struct Shown : DemoHost {
    Shown()
    {
        page->resize(1280, 620);
        pointer::showAndWait(page.get());
        page->activateWindow();
    }

    SliderExMouse *slider() const { return page->findChild<SliderExMouse *>(); }

    QString zoomText() const { return slider()->parentWidget()->findChild<LabelEx *>()->text(); }

    PushButtonEx *button(const QString &name) const
    {
        for (PushButtonEx *button : page->findChildren<PushButtonEx *>()) {
            if (button->accessibleName() == name || button->text() == name)
                return button;
        }
        return nullptr;
    }

    QPointer<QWidget> view = new QWidget;
    std::unique_ptr<WallPage> page = std::make_unique<WallPage>(&document, &selection, view);
};

} // namespace

class TestWallPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theViewStandsBetweenThePanels()
    {
        Shown host;
        const auto left = [&host](const QWidget *part) {
            return part->mapTo(host.page.get(), QPoint()).x();
        };
        QCOMPARE(host.page->view(), host.view.data());
        QVERIFY(left(host.page->senderPanel()) + host.page->senderPanel()->width()
                <= left(host.view));
        QVERIFY(left(host.view) + host.view->width() <= left(host.page->propertyPanel()));
        QCOMPARE(left(host.page->propertyPanel()) + host.page->propertyPanel()->width(), 1280);
        QVERIFY(host.page->modelBoard()->y() > host.view->geometry().bottom());
        QVERIFY(host.view->width() > 600);
        QVERIFY(host.view->height() > 400);
        host.page.reset();
        QVERIFY(!host.view);
    }

    void passesOnWhatIsToBePlaced()
    {
        Shown host;
        QSignalSpy one(host.page.get(), &WallPage::placeRequested);
        QSignalSpy row(host.page.get(), &WallPage::placeRowRequested);
        const PortRef port{"s3", 6};
        Q_EMIT host.page->senderPanel()->placeRequested(port, "stage-26");
        host.selection.setPort(port);
        windowmouse::click(host.page->modelBoard()->modelButtons().at(0));
        QCOMPARE(one.size(), 2);
        QCOMPARE(one.at(1).at(1).toString(), QString("stage-26"));
        const DialogAnswer answer("Place");
        host.page->modelBoard()->requestRow();
        QVERIFY(answer.wasAsked());
        QCOMPARE(row.size(), 1);
        QCOMPARE(row.at(0).at(2).toInt(), 6);
    }

    void showsTheZoomOfTheView_data()
    {
        QTest::addColumn<double>("zoom");
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("text");
        QTest::newRow("least") << 0.01 << 0 << "1.0 %";
        QTest::newRow("below") << 0.0001 << 0 << "0.0 %";
        QTest::newRow("greatest") << 8.0 << 200 << "800 %";
        QTest::newRow("middle") << 0.28284271 << 100 << "28 %"; // sqrt(0.01 * 8)
        QTest::newRow("one") << 1.0 << 138 << "100 %"; // 200 * ln(100) / ln(800)
    }

    void showsTheZoomOfTheView()
    {
        QFETCH(double, zoom);
        QFETCH(int, position);
        QFETCH(QString, text);
        Shown host;
        host.page->showZoom(0.5);
        QSignalSpy spy(host.page.get(), &WallPage::zoomRequested);
        host.page->showZoom(zoom);
        QCOMPARE(host.slider()->value(), position);
        QCOMPARE(host.zoomText(), text);
        QCOMPARE(spy.size(), 0);
    }

    void theSliderAsksForAZoom()
    {
        Shown host;
        QSignalSpy spy(host.page.get(), &WallPage::zoomRequested);
        SliderExMouse *slider = host.slider();
        windowmouse::click(slider, Qt::LeftButton,
                           QPoint(slider->width() / 2, slider->height() / 2));
        QVERIFY(!spy.isEmpty());
        QVERIFY(qAbs(spy.last().at(0).toDouble() - 0.28284271) < 0.00001);
        QCOMPARE(host.zoomText(), QString("28 %"));

        spy.clear();
        slider->setFocus();
        QTRY_VERIFY(slider->hasFocus());
        QTest::keyClick(host.page->windowHandle(), Qt::Key_Right);
        QCOMPARE(spy.size(), 1);
        QVERIFY(spy.at(0).at(0).toDouble() > 0.29);
    }

    void theButtonsAskForOtherZooms()
    {
        Shown host;
        QSignalSpy in(host.page.get(), &WallPage::zoomInRequested);
        QSignalSpy out(host.page.get(), &WallPage::zoomOutRequested);
        QSignalSpy fit(host.page.get(), &WallPage::zoomToFitRequested);
        windowmouse::click(host.button("Zoom in"));
        QCOMPARE(in.size(), 1);
        windowmouse::click(host.button("Zoom out"));
        QCOMPARE(out.size(), 1);
        windowmouse::click(host.button("Fit"));
        QCOMPARE(fit.size(), 1);
        QCOMPARE(in.size() + out.size(), 2);
    }

    void tabReachesAllOfThePage()
    {
        Shown host;
        QSet<QWidget *> reached;
        host.button("Select")->setFocus();
        for (int i = 0; i < 60; ++i) {
            reached.insert(QApplication::focusWidget());
            QTest::keyClick(host.page->windowHandle(), Qt::Key_Tab);
        }
        for (const char *name : {"Select", "Add sender", "Settings", "Fit", "Zoom in", "Zoom out"})
            QVERIFY2(reached.contains(host.button(name)), name);
        QVERIFY(reached.contains(host.slider()));
        QVERIFY(reached.contains(host.page->modelBoard()->modelButtons().at(1)));
        for (const QWidget *widget : qAsConst(reached)) {
            if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
                QVERIFY2(!button->text().isEmpty() || !button->accessibleName().isEmpty(),
                         qPrintable(button->objectName()));
        }
    }
};

ORVANE_TEST_MAIN(TestWallPage)
#include "tst_wallpage.moc"
