#include "model/commands.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/wallhost.h"
#include "support/windowmouse.h"
#include "wallpage/modelboard.h"

#include <comboboxex.h>
#include <custommessagebox.h>
#include <labelex.h>
#include <shapewidgetcontent.h>
#include <spinboxex.h>
#include <toolbuttonex.h>
#include <widgetboard.h>
#include <widgetcontrollboard.h>

#include <QSignalSpy>
#include <QUndoStack>

using namespace wall;

namespace
{

const PortRef mixedPort{QStringLiteral("s3"), 6}; ///< 6 panels, 3 halves and 2 banners are left.
constexpr int panelIndex = 0;
constexpr int halfIndex = 1;
constexpr int columnIndex = 2;
constexpr int bannerIndex = 3;

/// The board over the demo project, shown.
struct Shown : DemoHost {
    Shown()
    {
        board->resize(board->sizeHint());
        pointer::showAndWait(board.get());
    }

    ToolButtonEx *model(int index) const { return board->modelButtons().at(index); }

    /// The strip's own button that has this name.
    ToolButtonEx *stripButton(const QString &name) const
    {
        for (ToolButtonEx *button : board->findChildren<ToolButtonEx *>()) {
            if (button->accessibleName() == name)
                return button;
        }
        return nullptr;
    }

    /// Which models can be clicked, a letter each.
    QString enabled() const
    {
        QString text;
        for (const ToolButtonEx *button : board->modelButtons())
            text += button->isEnabled() ? 'x' : '.';
        return text;
    }

    QStringList portTexts() const
    {
        QStringList texts;
        for (const LabelEx *label :
             board->findChildren<LabelEx *>(QString(), Qt::FindDirectChildrenOnly))
            texts += label->text();
        return texts;
    }

    /// The popup's copies, after the popup was opened as a person does it.
    QList<QWidget *> openPopup() const
    {
        WidgetBoard *popup = nullptr;
        const auto *strip = board->findChild<WidgetControllBoard *>();
        QCursor::setPos(strip->mapToGlobal(strip->rect().bottomRight() + QPoint(200, 200)));
        QCoreApplication::processEvents();
        QCursor::setPos(strip->mapToGlobal(strip->rect().center()));
        QCoreApplication::processEvents();
        for (QWidget *window : QApplication::topLevelWidgets()) {
            auto *candidate = qobject_cast<WidgetBoard *>(window);
            if (candidate && candidate->isVisible())
                popup = candidate;
        }
        if (!popup)
            return {};
        if (!popup->shapeWidgetVisible())
            QTest::mouseClick(popup->dropDownBtn(), Qt::LeftButton);
        return popup->findChild<ShapeWidgetContent *>()->lsWidget();
    }

    std::unique_ptr<ModelBoard> board = std::make_unique<ModelBoard>(&document, &selection);
};

QString textOf(const QDialog *dialog)
{
    QStringList texts;
    for (const QLabel *label : dialog->findChildren<QLabel *>())
        texts += label->text();
    return texts.join('|');
}

} // namespace

class TestWallBoard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheModelsOfTheProject()
    {
        Shown host;
        QCOMPARE(host.board->modelButtons().size(), 5);
        const ToolButtonEx *banner = host.model(bannerIndex);
        QCOMPARE(banner->buttonType(), CabinetModelType);
        QCOMPARE(banner->cabinetWidth(), 256);
        QCOMPARE(banner->cabinetHeight(), 128);
        QCOMPARE(banner->toolTip(), QString("Banner 5.2_256x128"));
        QCOMPARE(banner->getMakerName(), QString("Banner"));
        QCOMPARE(banner->getCabinetweight(), 14);
        QCOMPARE(banner->getCabinetPointspace(), 520);
        QCOMPARE(host.enabled(), QString("xxxxx"));
    }

    void aClickWithoutAPortSaysSo()
    {
        Shown host;
        QSignalSpy spy(host.board.get(), &ModelBoard::placeRequested);
        const DialogAnswer answer([](QDialog *dialog) {
            QVERIFY(qobject_cast<CustomMessageBox *>(dialog));
            QVERIFY(textOf(dialog).contains("Choose a port of a sender first."));
            dialog->accept();
        });
        windowmouse::click(host.model(panelIndex));
        QVERIFY(answer.wasAsked());
        QCOMPARE(spy.size(), 0);
        QCOMPARE(host.portTexts().value(0), QString("No port chosen"));
    }

    void onlyWhatIsLeftOnThePortCanBeClicked()
    {
        Shown host;
        host.selection.setPort(mixedPort);
        QCOMPARE(host.enabled(), QString("xx.x."));
        QCOMPARE(host.portTexts(), QStringList({"Frame, port 6", "0 placed, 11 left"}));
        host.selection.setPort({"s1", 4});
        QCOMPARE(host.enabled(), QString("....."));
        host.selection.setPort({});
        QCOMPARE(host.enabled(), QString("xxxxx"));
    }

    void aClickAsksForTheModel()
    {
        Shown host;
        host.selection.setPort(mixedPort);
        QSignalSpy spy(host.board.get(), &ModelBoard::placeRequested);
        windowmouse::click(host.model(halfIndex));
        QCOMPARE(spy.size(), 1);
        QVERIFY(spy.at(0).at(0).value<PortRef>() == mixedPort);
        QCOMPARE(spy.at(0).at(1).toString(), QString("stage-26-half"));
        windowmouse::click(host.model(columnIndex));
        QCOMPARE(spy.size(), 1);
    }

    void aPressThatEndsElsewhereAsksForNothing()
    {
        Shown host;
        host.selection.setPort(mixedPort);
        QSignalSpy spy(host.board.get(), &ModelBoard::placeRequested);
        windowmouse::press(host.model(panelIndex), Qt::LeftButton, QPoint(3, 3));
        windowmouse::release(host.model(panelIndex), Qt::LeftButton, QPoint(-5, 3));
        QCOMPARE(spy.size(), 0);
        windowmouse::click(host.model(panelIndex));
        QCOMPARE(spy.size(), 1);
    }

    void keysChooseModels()
    {
        Shown host;
        host.selection.setPort(mixedPort);
        host.board->activateWindow();
        QSignalSpy spy(host.board.get(), &ModelBoard::placeRequested);
        host.model(panelIndex)->setFocus();
        QTRY_VERIFY(host.model(panelIndex)->hasFocus());
        QTest::keyClick(host.board->windowHandle(), Qt::Key_Space);
        QTest::keyClick(host.board->windowHandle(), Qt::Key_Return);
        QCOMPARE(spy.size(), 2);
        QTest::keyClick(host.board->windowHandle(), Qt::Key_Tab);
        QVERIFY(host.model(halfIndex)->hasFocus());
    }

    void followsWhatIsPlaced()
    {
        Shown host;
        host.selection.setPort(mixedPort);
        PlacedCabinet banner;
        banner.modelId = "banner-52";
        banner.port = mixedPort;
        host.document.push(new PlaceCabinetsCommand(host.project(), {banner, banner}));
        QCOMPARE(host.enabled(), QString("xx..."));
        QCOMPARE(host.portTexts().value(1), QString("2 placed, 9 left"));
        host.document.undoStack()->undo();
        QCOMPARE(host.enabled(), QString("xx.x."));
        host.document.push(new RemoveSenderCommand(host.project(), "s3"));
        QCOMPARE(host.enabled(), QString("xxxxx"));
    }

    void theLastOneCanBePlacedInsideItsClick()
    {
        Shown host;
        const PortRef lastOne{"s1", 1};
        host.selection.setPort(lastOne);
        connect(host.board.get(), &ModelBoard::placeRequested, this,
                [&host](const PortRef &port, const QString &modelId) {
                    PlacedCabinet cabinet;
                    cabinet.modelId = modelId;
                    cabinet.port = port;
                    host.document.push(new PlaceCabinetsCommand(host.project(), {cabinet}));
                });
        QCOMPARE(host.project()->leftCount(lastOne, "stage-26"), 1);
        windowmouse::click(host.model(panelIndex));
        QVERIFY(!host.model(panelIndex)->isEnabled());
        QCOMPARE(host.project()->leftCount(lastOne, "stage-26"), 0);
    }

    void copiesInThePopupAskForTheirModel()
    {
        Shown host;
        host.selection.setPort(mixedPort);
        QSignalSpy spy(host.board.get(), &ModelBoard::placeRequested);
        const QList<QWidget *> copies = host.openPopup();
        QCOMPARE(copies.size(), 5);
        QTest::mouseClick(copies.at(bannerIndex), Qt::LeftButton);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.at(0).at(1).toString(), QString("banner-52"));

        const DialogAnswer answer([](QDialog *dialog) {
            QVERIFY(textOf(dialog).contains("No Cube 3.9 is left on Frame, port 6."));
            dialog->accept();
        });
        QTest::mouseClick(copies.at(4), Qt::LeftButton);
        QVERIFY(answer.wasAsked());
        QCOMPARE(spy.size(), 1);
    }

    void hangsMoreCabinetsOnThePort()
    {
        Shown host;
        host.selection.setPort(mixedPort);
        const DialogAnswer answer([](QDialog *dialog) {
            auto *models = dialog->findChild<ComboBoxEx *>();
            QCOMPARE(models->count(), 5);
            models->setCurrentIndex(columnIndex);
            auto *count = dialog->findChild<SpinBoxEx *>();
            QCOMPARE(count->value(), 10);
            QCOMPARE(count->maximum(), maxStock);
            count->setValue(7);
            buttonNamed(dialog, "Add")->click();
        });
        windowmouse::click(host.stripButton("Add cabinets to the port"));
        QVERIFY(answer.wasAsked());
        QCOMPARE(host.project()->stockCount(mixedPort, "stage-26-column"), 7);
        QCOMPARE(host.enabled(), QString("xxxx."));

        const DialogAnswer more([](QDialog *dialog) { buttonNamed(dialog, "Add")->click(); });
        host.board->addStock();
        QCOMPARE(host.project()->stockCount(mixedPort, "stage-26"), 16);
        host.document.undoStack()->undo();
        host.document.undoStack()->undo();
        QCOMPARE(host.enabled(), QString("xx.x."));

        const DialogAnswer cancelled("Cancel");
        host.board->addStock();
        QVERIFY(cancelled.wasAsked());
        QVERIFY(!host.document.undoStack()->canUndo());
    }

    void asksForARowOfWhatIsLeft()
    {
        Shown host;
        host.selection.setPort(mixedPort);
        QSignalSpy spy(host.board.get(), &ModelBoard::placeRowRequested);
        const DialogAnswer answer([](QDialog *dialog) {
            auto *models = dialog->findChild<ComboBoxEx *>();
            QCOMPARE(models->count(), 3); // only what is left on the port
            auto *count = dialog->findChild<SpinBoxEx *>();
            QCOMPARE(count->maximum(), 6);
            QCOMPARE(count->value(), 6);
            models->setCurrentIndex(1);
            QCOMPARE(count->value(), 3);
            QCOMPARE(count->maximum(), 3);
            count->setValue(2);
            buttonNamed(dialog, "Place")->click();
        });
        windowmouse::click(host.stripButton("Place a row of cabinets"));
        QVERIFY(answer.wasAsked());
        QCOMPARE(spy.size(), 1);
        QVERIFY(spy.at(0).at(0).value<PortRef>() == mixedPort);
        QCOMPARE(spy.at(0).at(1).toString(), QString("stage-26-half"));
        QCOMPARE(spy.at(0).at(2).toInt(), 2);

        host.selection.setPort({"s1", 4});
        const DialogAnswer none([](QDialog *dialog) {
            QVERIFY(textOf(dialog).contains("No cabinet is left on Main left, port 4."));
            dialog->accept();
        });
        host.board->requestRow();
        QVERIFY(none.wasAsked());
        QCOMPARE(spy.size(), 1);
    }

    void stockAndRowNeedAPort()
    {
        Shown host;
        for (const auto request : {&ModelBoard::addStock, &ModelBoard::requestRow}) {
            const DialogAnswer answer([](QDialog *dialog) {
                QVERIFY(textOf(dialog).contains("Choose a port of a sender first."));
                dialog->accept();
            });
            (host.board.get()->*request)();
            QVERIFY(answer.wasAsked());
        }
        QVERIFY(!host.document.isModified());
    }

    void showsChangesOfModels()
    {
        Shown host;
        CabinetModel model = *host.project()->model("banner-52");
        model.name = "Long banner";
        model.size = QSize(512, 64);
        host.document.push(new ChangeModelCommand(host.project(), model));
        QCOMPARE(host.model(bannerIndex)->toolTip(), QString("Long banner_512x64"));
        QCOMPARE(host.model(bannerIndex)->cabinetWidth(), 512);
        QTRY_COMPARE(host.openPopup().at(bannerIndex)->toolTip(), QString("Long banner_512x64"));
        QVERIFY(host.model(bannerIndex)->focusPolicy() & Qt::TabFocus);
    }

    void followsAReset()
    {
        Shown host;
        host.selection.setPort(mixedPort);
        host.document.reset(*generateProject(100), QString());
        QCOMPARE(host.board->modelButtons().size(), 3);
        QCOMPARE(host.portTexts().value(0), QString("No port chosen"));
        QSignalSpy spy(host.board.get(), &ModelBoard::placeRequested);
        host.selection.setPort({"s1", 1});
        windowmouse::click(host.model(0));
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.at(0).at(1).toString(), QString("field-39"));
        host.document.reset(ProjectData(), QString());
        QVERIFY(host.board->modelButtons().isEmpty());
    }

    void changesAfterTheBoardIsGoneDoNoHarm()
    {
        Shown host;
        CabinetModel model = *host.project()->model("banner-52");
        model.name = "Other";
        host.document.push(new ChangeModelCommand(host.project(), model));
        host.board.reset(); // before the popup's copies were made anew
        host.selection.setPort(mixedPort);
        host.document.reset(ProjectData(), QString());
        QCoreApplication::processEvents();
        QCOMPARE(host.project()->cabinetCount(), 0);
    }
};

ORVANE_TEST_MAIN(TestWallBoard)
#include "tst_wallboard.moc"
