#include "model/commands.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/wallhost.h"
#include "support/windowmouse.h"
#include "wallpage/numberfield.h"
#include "wallpage/propertypanel.h"

#include <labelex.h>

#include <QLabel>
#include <QSignalSpy>
#include <QStyleOptionSpinBox>
#include <QUndoStack>

using namespace wall;

namespace
{

/// The panel over the demo project, shown.
struct Shown : DemoHost {
    Shown()
    {
        panel->resize(panel->sizeHint().width(), 700);
        pointer::showAndWait(panel.get());
        panel->activateWindow();
        ids = project()->line({"s1", 1});
    }

    NumberField *field(const QString &name) const
    {
        for (NumberField *field : panel->findChildren<NumberField *>()) {
            if (field->accessibleName() == name)
                return field;
        }
        return nullptr;
    }

    NumberField *focused(const QString &name) const
    {
        NumberField *chosen = field(name);
        chosen->setFocus(Qt::TabFocusReason);
        return chosen;
    }

    QString heading() const { return panel->findChild<QLabel *>()->text(); }

    /// Model, size, port, place in the line; then the totals.
    QStringList texts() const
    {
        QStringList list;
        for (const LabelEx *label : panel->findChildren<LabelEx *>())
            list += label->text();
        return list;
    }

    void select(const CabinetIds &chosen)
    {
        selection.setCabinets(chosen);
        QCoreApplication::processEvents(); // it is shown together with all else that happened
    }

    void key(int key) const { QTest::keyClick(panel->windowHandle(), static_cast<Qt::Key>(key)); }

    void type(const QString &text) const
    {
        for (const QChar letter : text)
            QTest::keyClick(panel->windowHandle(), letter.toLatin1());
    }

    QPoint position(CabinetId id) const { return project()->cabinet(id)->position; }
    int rotation(CabinetId id) const { return project()->cabinet(id)->rotation; }
    int steps() const { return document.undoStack()->index(); }

    std::unique_ptr<PropertyPanel> panel = std::make_unique<PropertyPanel>(&document, &selection);
    CabinetIds ids; ///< Of a block of 5 by 3 cabinets of 192 by 192 pixels, from (0, 128) on.
};

QPoint arrowOf(const QSpinBox *box, QStyle::SubControl arrow)
{
    QStyleOptionSpinBox option;
    option.initFrom(box);
    option.subControls = QStyle::SC_All;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    option.frame = box->hasFrame();
    return box->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, box).center();
}

} // namespace

class TestWallProperties : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingSelectedLeavesNothingToChange()
    {
        Shown host;
        QCOMPARE(host.heading(), QString("Nothing selected"));
        QCOMPARE(host.texts().mid(0, 4), QStringList({"", "", "", ""}));
        for (const char *name : {"X", "Y", "Rotation"})
            QVERIFY(!host.field(name)->isEnabled());
        for (const char *name : {"Turn left", "Align top", "In a row", "Delete"})
            QVERIFY(!buttonNamed(host.panel.get(), name)->isEnabled());
        host.panel->removeCabinets();
        host.panel->rotateBy(90);
        host.panel->arrange(Arrangement::Row);
        QVERIFY(!host.document.isModified());
    }

    void showsOneCabinet()
    {
        Shown host;
        host.select({host.ids.at(6)});
        QCOMPARE(host.texts().mid(0, 4),
                 QStringList({"Stage 2.6", "192 × 192", "Main left, port 1", "7 of 15"}));
        QCOMPARE(host.field("X")->text(), QString("576"));
        QCOMPARE(host.field("Y")->text(), QString("320"));
        QCOMPARE(host.field("Rotation")->text(), QString("0"));
        QVERIFY(buttonNamed(host.panel.get(), "Turn left")->isEnabled());
        QVERIFY(!buttonNamed(host.panel.get(), "Align left")->isEnabled());
    }

    void showsWhatSeveralHaveInCommon()
    {
        Shown host;
        host.select({host.ids.at(0), host.ids.at(1)});
        QCOMPARE(host.texts().mid(0, 4),
                 QStringList({"Stage 2.6", "192 × 192", "Main left, port 1", "Various"}));
        QCOMPARE(host.field("X")->text(), QString("---"));
        QCOMPARE(host.field("Y")->text(), QString("128"));
        QVERIFY(buttonNamed(host.panel.get(), "Align left")->isEnabled());

        host.select({host.ids.at(0), host.project()->line({"s3", 1}).at(0)});
        QCOMPARE(host.texts().mid(0, 4), QStringList({"Various", "Various", "Various", "Various"}));
        host.select({host.ids.at(1)});
        QCOMPARE(host.field("X")->text(), QString("192"));
    }

    void followsChangesFromElsewhere()
    {
        Shown host;
        host.select({host.ids.at(0)});
        host.document.push(
            new MoveCabinetsCommand(host.project(), host.selection.cabinets(), QPoint(7, -8)));
        QTRY_COMPARE(host.field("X")->text(), QString("7"));
        QCOMPARE(host.field("Y")->text(), QString("120"));
        host.document.undoStack()->undo();
        QTRY_COMPARE(host.field("X")->text(), QString("0"));
        CabinetModel model = *host.project()->model("stage-26");
        model.name = "Renamed";
        host.document.push(new ChangeModelCommand(host.project(), model));
        QTRY_COMPARE(host.texts().constFirst(), QString("Renamed"));
        host.document.push(new ChangeSenderCommand(host.project(), "s1", "West"));
        QTRY_COMPARE(host.texts().at(2), QString("West, port 1"));
        CabinetIds order = host.ids;
        std::reverse(order.begin(), order.end());
        host.document.push(new ReorderLineCommand(host.project(), {"s1", 1}, order));
        QTRY_COMPARE(host.texts().at(3), QString("15 of 15"));
        host.document.push(new RemoveCabinetsCommand(host.project(), {host.ids.at(0)}));
        QTRY_COMPARE(host.heading(), QString("Nothing selected"));
    }

    void aSeriesOfKeysIsOneStep()
    {
        Shown host;
        host.select({host.ids.at(0)});
        host.focused("X");
        for (int i = 0; i < 5; ++i)
            host.key(Qt::Key_Up);
        QCOMPARE(host.position(host.ids.at(0)), QPoint(5, 128));
        QCOMPARE(host.field("X")->text(), QString("5"));
        QCOMPARE(host.steps(), 1);
        host.key(Qt::Key_PageDown);
        QCOMPARE(host.position(host.ids.at(0)), QPoint(-5, 128));
        QCOMPARE(host.steps(), 1);

        host.focused("Y");
        host.key(Qt::Key_Down);
        QCOMPARE(host.steps(), 2);
        host.focused("X");
        host.key(Qt::Key_Up);
        QCOMPARE(host.steps(), 3);
        host.document.undoStack()->undo();
        host.document.undoStack()->undo();
        QCOMPARE(host.position(host.ids.at(0)), QPoint(-5, 128));
        host.document.undoStack()->undo();
        QCOMPARE(host.position(host.ids.at(0)), QPoint(0, 128));
    }

    void anUndoOrAnotherSelectionEndsASeries()
    {
        Shown host;
        host.select({host.ids.at(0)});
        host.focused("Rotation");
        host.key(Qt::Key_Up);
        host.key(Qt::Key_Up);
        host.selection.setCabinets({host.ids.at(1)});
        host.key(Qt::Key_Up);
        QCOMPARE(host.steps(), 2);
        host.key(Qt::Key_Up);
        QCOMPARE(host.steps(), 2);
        host.document.undoStack()->undo();
        host.document.undoStack()->redo();
        host.key(Qt::Key_Up);
        QCOMPARE(host.steps(), 3);
        host.document.undoStack()->undo();
        QCOMPARE(host.rotation(host.ids.at(1)), 2);
        QCOMPARE(host.rotation(host.ids.at(0)), 2);
    }

    void aTypedNumberIsSetWhenItIsFinished()
    {
        Shown host;
        host.select({host.ids.at(0)});
        host.focused("X")->selectAll();
        host.type("-250");
        QCOMPARE(host.steps(), 0);
        host.key(Qt::Key_Return);
        QCOMPARE(host.position(host.ids.at(0)), QPoint(-250, 128));
        QCOMPARE(host.steps(), 1);
        host.focused("Y")->selectAll();
        host.type("33");
        host.key(Qt::Key_Tab);
        QCOMPARE(host.position(host.ids.at(0)), QPoint(-250, 33));
        QCOMPARE(host.steps(), 2);
        QVERIFY(host.field("Rotation")->hasFocus());
        host.type("90");
        host.key(Qt::Key_Return);
        QCOMPARE(host.rotation(host.ids.at(0)), 90);

        // What is there already is no step.
        host.field("Rotation")->selectAll();
        host.type("90");
        host.key(Qt::Key_Return);
        QCOMPARE(host.steps(), 3);
    }

    void aNumberTypedForSeveralIsSetForAll()
    {
        Shown host;
        const CabinetIds both{host.ids.at(0), host.ids.at(1)};
        host.select(both);
        host.focused("X");
        QCOMPARE(host.field("X")->text(), QString("---"));
        host.type("40");
        host.key(Qt::Key_Return);
        QCOMPARE(host.position(both.at(0)), QPoint(40, 128));
        QCOMPARE(host.position(both.at(1)), QPoint(40, 128));
        QCOMPARE(host.field("X")->text(), QString("40"));
        QCOMPARE(host.steps(), 1);
        host.document.undoStack()->undo();
        QCOMPARE(host.position(both.at(1)), QPoint(192, 128));
        QTRY_COMPARE(host.field("X")->text(), QString("---"));

        // The number that typing begins from counts, too, and so does a text typed into the dashes.
        windowmouse::click(host.field("X"), Qt::LeftButton, QPoint(4, 14));
        host.type("0");
        host.key(Qt::Key_Return);
        QCOMPARE(host.position(both.at(1)), QPoint(0, 128));
    }

    void leavingAMixedNumberChangesNothing()
    {
        Shown host;
        host.select({host.ids.at(0), host.ids.at(1)});
        host.focused("X");
        host.key(Qt::Key_Tab);
        QCOMPARE(host.field("X")->text(), QString("---"));
        QCOMPARE(host.steps(), 0);
    }

    void aStepMovesEachFromWhereItIs()
    {
        Shown host;
        const CabinetIds both{host.ids.at(0), host.ids.at(1)};
        host.select(both);
        host.focused("X");
        host.key(Qt::Key_Up);
        host.key(Qt::Key_Up);
        QCOMPARE(host.position(both.at(0)), QPoint(2, 128));
        QCOMPARE(host.position(both.at(1)), QPoint(194, 128));
        QCOMPARE(host.field("X")->text(), QString("---"));
        QCOMPARE(host.steps(), 1);
    }

    void rotationWraps()
    {
        Shown host;
        const CabinetId id = host.ids.at(0);
        host.select({id});
        NumberField *field = host.focused("Rotation");
        QVERIFY(field->wrapping());
        QCOMPARE(field->minimum(), 0);
        QCOMPARE(field->maximum(), 359);
        host.key(Qt::Key_Down);
        QCOMPARE(host.rotation(id), 359);
        QCOMPARE(field->text(), QString("359"));
        host.key(Qt::Key_Up);
        QCOMPARE(host.rotation(id), 0);
        QCOMPARE(field->text(), QString("0"));

        QSignalSpy directions(field, &SpinBoxEx::signal_valueChanged);
        windowmouse::click(field, Qt::LeftButton, arrowOf(field, QStyle::SC_SpinBoxDown));
        QCOMPARE(host.rotation(id), 359);
        windowmouse::click(field, Qt::LeftButton, arrowOf(field, QStyle::SC_SpinBoxUp));
        QCOMPARE(host.rotation(id), 0);
        QCOMPARE(directions.size(), 2);
        QCOMPARE(directions.at(0).at(0).toInt(), -1);
        QCOMPARE(directions.at(1).at(0).toInt(), 1);
        takeDebugMessages();
    }

    void eachClickIsAStepOfItsOwn()
    {
        Shown host;
        host.select({host.ids.at(0)});
        NumberField *field = host.field("Y");
        windowmouse::click(field, Qt::LeftButton, arrowOf(field, QStyle::SC_SpinBoxUp));
        windowmouse::click(field, Qt::LeftButton, arrowOf(field, QStyle::SC_SpinBoxUp));
        QCOMPARE(host.position(host.ids.at(0)), QPoint(0, 130));
        QCOMPARE(host.steps(), 2);
    }

    void positionsStayPossible()
    {
        Shown host;
        const CabinetIds both{host.ids.at(0), host.ids.at(1)};
        host.select(both);
        host.document.push(new MoveCabinetsCommand(
            host.project(), both, QPoint(maxCoordinate - host.position(both.at(1)).x() - 1, 0)));
        QTRY_COMPARE(host.field("X")->isMixed(), true);
        host.focused("X");
        for (int i = 0; i < 3; ++i)
            host.key(Qt::Key_Up);
        QCOMPARE(host.position(both.at(1)).x(), maxCoordinate);
        QCOMPARE(host.position(both.at(0)).x(), maxCoordinate - 192);
    }

    void buttonsTurnByQuarters()
    {
        Shown host;
        const CabinetIds both{host.ids.at(0), host.ids.at(1)};
        host.document.push(new RotateCabinetsCommand(host.project(), CabinetIds{both.at(0)}, 300));
        host.select(both);
        windowmouse::click(buttonNamed(host.panel.get(), "Turn right"));
        QCOMPARE(host.rotation(both.at(0)), 30);
        QCOMPARE(host.rotation(both.at(1)), 90);
        windowmouse::click(buttonNamed(host.panel.get(), "Turn left"));
        windowmouse::click(buttonNamed(host.panel.get(), "Turn left"));
        QCOMPARE(host.rotation(both.at(0)), 210);
        QCOMPARE(host.rotation(both.at(1)), 270);
        QCOMPARE(host.steps(), 4);
        host.document.undoStack()->undo();
        QCOMPARE(host.rotation(both.at(0)), 300);
        QCOMPARE(host.rotation(both.at(1)), 0);
    }

    void buttonsArrange_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QVector<QPoint>>("expected");
        // From (0, 0), (300, 50) and (100, 400); the last is turned upright, so that it covers
        // 96 by 192 pixels from (148, 352) on.
        using Points = QVector<QPoint>;
        QTest::newRow("left") << "Align left" << Points{{0, 0}, {0, 50}, {-48, 400}};
        QTest::newRow("top") << "Align top" << Points{{0, 0}, {300, 0}, {100, 48}};
        QTest::newRow("row") << "In a row" << Points{{0, 0}, {288, 0}, {144, 48}};
        QTest::newRow("column") << "In a column" << Points{{0, 0}, {0, 96}, {-48, 240}};
    }

    void buttonsArrange()
    {
        QFETCH(QString, button);
        QFETCH(QVector<QPoint>, expected);
        Shown host;
        const CabinetIds halves = host.project()->line({"s3", 2}).mid(0, 3); // 192 by 96 pixels
        host.document.push(new MoveCabinetsCommand(host.project(),
                                                   {{halves.at(0), QPoint(0, 0)},
                                                    {halves.at(1), QPoint(300, 50)},
                                                    {halves.at(2), QPoint(100, 400)}}));
        host.document.push(new RotateCabinetsCommand(host.project(), CabinetIds{halves.at(2)}, 90));
        QCOMPARE(host.project()->boundsOf(halves.at(2)), QRect(148, 352, 96, 192));
        host.select(halves);
        windowmouse::click(buttonNamed(host.panel.get(), button));
        for (int i = 0; i < expected.size(); ++i)
            QCOMPARE(host.position(halves.at(i)), expected.at(i));
        QCOMPARE(host.steps(), 3);
        windowmouse::click(buttonNamed(host.panel.get(), button));
        QCOMPARE(host.steps(), 3); // in order already
        host.document.undoStack()->undo();
        QCOMPARE(host.position(halves.at(1)), QPoint(300, 50));
    }

    void deletesWhatIsSelected()
    {
        Shown host;
        host.select(host.ids.mid(0, 4));
        windowmouse::click(buttonNamed(host.panel.get(), "Delete"));
        QCOMPARE(host.project()->cabinetCount(), 399);
        QTRY_COMPARE(host.heading(), QString("Nothing selected"));
        host.document.undoStack()->undo();
        QCOMPARE(host.project()->line({"s1", 1}), host.ids);
    }

    void totalsAreLive()
    {
        Shown host;
        // 403 cabinets: 240 panels, 20 halves, 48 columns, 15 banners and 80 cubes.
        QCOMPARE(host.texts().mid(4), QStringList({"403", "11,902,976", "2,918.1 kg", "52.58 kW"}));
        host.document.push(new RemoveCabinetsCommand(host.project(), {host.ids.at(0)}));
        QCOMPARE(host.texts().mid(4), QStringList({"402", "11,866,112", "2,910.7 kg", "52.44 kW"}));
        host.document.undoStack()->undo();
        CabinetModel model = *host.project()->model("banner-52");
        model.weight += 10;
        host.document.push(new ChangeModelCommand(host.project(), model));
        QCOMPARE(host.texts().at(6), QString("3,068.1 kg"));
        host.document.reset(ProjectData(), QString());
        QCOMPARE(host.texts().mid(4), QStringList({"0", "0", "0.0 kg", "0.00 kW"}));
    }

    void changesAfterThePanelIsGoneDoNoHarm()
    {
        Shown host;
        host.select({host.ids.at(0)});
        host.selection.clear(); // to be shown later
        host.panel.reset();
        host.document.reset(ProjectData(), QString());
        QCoreApplication::processEvents();
        QCOMPARE(host.project()->cabinetCount(), 0);
    }
};

ORVANE_TEST_MAIN(TestWallProperties)
#include "tst_wallproperties.moc"
