#include "support/layoutcheck.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include "document.h"
#include "model/commands.h"
#include "model/sampleprojects.h"
#include "pages/cabinetpreview.h"
#include "pages/measures.h"
#include "pages/modelfields.h"
#include "pages/modelspage.h"
#include "pages/modeltree.h"

#include <checkboxex.h>
#include <comboboxex.h>
#include <doublespinboxex.h>
#include <lineeditex.h>
#include <radiobuttonex.h>
#include <sliderex.h>
#include <spinboxex.h>
#include <treeitem.h>

#include <QtWidgets>

using namespace wall;

namespace
{

const QString panel = "stage-26"; // 240 placed
const QString banner = "banner-52"; // 15 placed

/// The page over the demo project, shown.
struct Fixture {
    Document document;
    QScopedPointer<ModelsPage> page;

    Fixture()
    {
        document.reset(demoProject(), QString());
        page.reset(new ModelsPage(&document));
        page->resize(1100, 640);
        QVERIFY(pointer::showAndWait(page.data()));
    }

    Project *project() const { return document.project(); }
    const CabinetModel &model(const QString &id = panel) const { return *project()->model(id); }
    int steps() const { return document.undoStack()->count(); }
    ModelTree *tree() const { return page->findChild<ModelTree *>(); }
    ModelFields *fields() const { return page->findChild<ModelFields *>(); }
    CabinetPreview *preview() const { return page->findChild<CabinetPreview *>(); }
    /// A field by its accessible name.
    template <class Field> Field *field(const QString &name) const
    {
        const QList<Field *> all = page->findChildren<Field *>();
        for (Field *field : all) {
            if (field->accessibleName() == name)
                return field;
        }
        return nullptr;
    }
    LineEditEx *name() const { return field<LineEditEx>("Name"); }
    SpinBoxEx *width() const { return field<SpinBoxEx>("Width, px"); }
    DoubleSpinBoxEx *pitch() const { return field<DoubleSpinBoxEx>("Pitch, mm"); }
    TreeItem *row(const QString &id) const
    {
        return qobject_cast<TreeItem *>(tree()->itemWidget(tree()->row(id), 0));
    }
    QString text(const QString &objectName) const
    {
        return page->findChild<QLabel *>(objectName)->text();
    }
    QStringList totals(const QString &row) const
    {
        return {text(row + "Cabinets"), text(row + "Pixels"), text(row + "Weight"),
                text(row + "Power")};
    }
    /// Types a number as a person does and ends with Return.
    void typeNumber(QAbstractSpinBox *box, const QString &number) const
    {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, number);
        QTest::keyClick(box, Qt::Key_Return);
    }
};

QPoint arrowOf(const QSpinBox *box, QStyle::SubControl arrow)
{
    QStyleOptionSpinBox option;
    option.initFrom(box);
    option.subControls = QStyle::SC_All;
    option.buttonSymbols = box->buttonSymbols();
    option.frame = box->hasFrame();
    return box->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, box).center();
}

QTreeWidgetItem *family(const ModelTree *tree, const QString &name)
{
    return tree->findItems(name, Qt::MatchExactly).value(0);
}

} // namespace

class tst_WallModels : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void treeShowsFamiliesAndModels();
    void clickChoosesAndChecks();
    void keysChooseAndCheckApart();
    void familyIsNoChoice();
    void fieldsShowTheChosenModel();
    void typedNameIsOneStep();
    void leavingAFieldEndsItsStep();
    void typedNumberIsOneStep();
    void everyNumberFieldChangesItsOwn_data();
    void everyNumberFieldChangesItsOwn();
    void arrowsOfOneVisitAreOneStep();
    void backToTheStartLeavesNoStep();
    void refusedValuesAreTold_data();
    void refusedValuesAreTold();
    void emptyNameIsRefused();
    void nameWarnsOfFileNames();
    void familyMovesTheRow();
    void onlyTheRowThatChangedIsMadeAnew();
    void wheelLeavesAnUnchosenFieldAlone();
    void totalsAreThoseOfTheWall();
    void totalsOfCheckedModels();
    void totalsAreLive();
    void previewIsToScale();
    void previewShowsUnits();
    void brightnessDimsThePicture();
    void gridCanBeHidden();
    void anotherProjectIsShownAnew();
    void emptyProjectHasNothingToEdit();
    void textsOfMeasures();
    void nothingIsCut_data();
    void nothingIsCut();
};

void tst_WallModels::treeShowsFamiliesAndModels()
{
    Fixture f;
    QCOMPARE(f.tree()->topLevelItemCount(), 3);
    QCOMPARE(f.tree()->topLevelItem(0)->text(0), QString("Stage"));
    QCOMPARE(f.tree()->topLevelItem(1)->text(0), QString("Banner"));
    QCOMPARE(f.tree()->topLevelItem(2)->text(0), QString("Cube"));
    QCOMPARE(f.tree()->topLevelItem(0)->childCount(), 3);
    QCOMPARE(f.row("stage-26-half")->getCabinetName(), QString("Stage 2.6 half"));
    QCOMPARE(f.row("stage-26-half")->getCabinetSize(), QSize(192, 96));
    for (const QString &id : f.project()->modelIds()) {
        QCOMPARE(f.tree()->row(id)->checkState(0), Qt::Checked);
        QVERIFY(f.row(id)->isVisible());
    }
    QCOMPARE(f.tree()->currentModel(), panel);
}

void tst_WallModels::clickChoosesAndChecks()
{
    Fixture f;
    // The tree looks where the pointer is.
    QCursor::setPos(f.row(banner)->mapToGlobal(f.row(banner)->rect().center()));
    windowmouse::click(f.row(banner));
    QCOMPARE(f.tree()->currentModel(), banner);
    QCOMPARE(f.name()->text(), QString("Banner 5.2"));
    QCOMPARE(f.tree()->row(banner)->checkState(0), Qt::Unchecked);
    QCOMPARE(f.tree()->checkedModels().size(), 4);
    QVERIFY(!f.tree()->checkedModels().contains(banner));
    windowmouse::click(f.row(banner));
    QCOMPARE(f.tree()->checkedModels(), f.project()->modelIds());
    QCOMPARE(f.steps(), 0);
}

void tst_WallModels::keysChooseAndCheckApart()
{
    Fixture f;
    f.tree()->setFocus();
    QTest::keyClick(f.tree(), Qt::Key_Down);
    QCOMPARE(f.tree()->currentModel(), QString("stage-26-half"));
    QCOMPARE(f.tree()->checkedModels().size(), 5);
    QTest::keyClick(f.tree(), Qt::Key_Space);
    QCOMPARE(f.tree()->checkedModels().size(), 4);
    QCOMPARE(f.tree()->currentModel(), QString("stage-26-half"));
}

void tst_WallModels::familyIsNoChoice()
{
    Fixture f;
    QSignalSpy chosen(f.tree(), &ModelTree::currentModelChanged);
    f.tree()->setCurrentItem(family(f.tree(), "Cube"));
    QCOMPARE(chosen.count(), 0);
    QCOMPARE(f.tree()->currentModel(), panel);
}

void tst_WallModels::fieldsShowTheChosenModel()
{
    Fixture f;
    f.tree()->setCurrentModel(banner);
    QCOMPARE(f.name()->text(), QString("Banner 5.2"));
    QCOMPARE(f.field<ComboBoxEx>("Family")->currentText(), QString("Banner"));
    QCOMPARE(f.width()->value(), 256);
    QCOMPARE(f.field<SpinBoxEx>("Height, px")->value(), 128);
    QCOMPARE(f.pitch()->text(), QString("5.200"));
    QCOMPARE(f.field<DoubleSpinBoxEx>("Weight, kg")->text(), QString("13.50"));
    QCOMPARE(f.field<DoubleSpinBoxEx>("Power, W")->text(), QString("210.0"));
    QCOMPARE(f.field<DoubleSpinBoxEx>("Voltage, V")->text(), QString("230.0"));
    QCOMPARE(f.steps(), 0);
}

void tst_WallModels::typedNameIsOneStep()
{
    Fixture f;
    f.name()->setFocus();
    f.name()->selectAll();
    QTest::keyClicks(f.name(), "Panel");
    QCOMPARE(f.model().name, QString("Panel"));
    QCOMPARE(f.row(panel)->getCabinetName(), QString("Panel"));
    QCOMPARE(f.steps(), 1);
    f.document.undoStack()->undo();
    QCOMPARE(f.model().name, QString("Stage 2.6"));
    QCOMPARE(f.name()->text(), QString("Stage 2.6"));
    QCOMPARE(f.row(panel)->getCabinetName(), QString("Stage 2.6"));
}

void tst_WallModels::leavingAFieldEndsItsStep()
{
    Fixture f;
    f.name()->setFocus();
    f.name()->end(false);
    QTest::keyClicks(f.name(), "ab");
    f.width()->setFocus();
    f.name()->setFocus();
    f.name()->end(false);
    QTest::keyClicks(f.name(), "cd");
    QCOMPARE(f.steps(), 2);
    QTest::keyClick(f.name(), Qt::Key_Return);
    QTest::keyClicks(f.name(), "e");
    QCOMPARE(f.steps(), 3);
    f.document.undoStack()->undo();
    f.document.undoStack()->undo();
    QCOMPARE(f.model().name, QString("Stage 2.6ab"));
}

void tst_WallModels::typedNumberIsOneStep()
{
    Fixture f;
    f.width()->setFocus();
    f.width()->selectAll();
    QTest::keyClicks(f.width(), "128");
    QCOMPARE(f.model().size, QSize(192, 192)); // a number counts when it is complete
    QTest::keyClick(f.width(), Qt::Key_Return);
    QCOMPARE(f.model().size, QSize(128, 192));
    QCOMPARE(f.row(panel)->getCabinetSize(), QSize(128, 192));
    QCOMPARE(f.steps(), 1);
    f.document.undoStack()->undo();
    QCOMPARE(f.width()->value(), 192);
    QCOMPARE(f.row(panel)->getCabinetSize(), QSize(192, 192));
}

void tst_WallModels::everyNumberFieldChangesItsOwn_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QList<double>>("numbers"); // pitch, weight, power, voltage
    const QSize size(192, 192);
    QTest::newRow("width") << "Width, px"
                           << "65536" << QSize(65536, 192) << QList<double>{2.6, 7.4, 145, 230};
    QTest::newRow("height") << "Height, px"
                            << "1" << QSize(192, 1) << QList<double>{2.6, 7.4, 145, 230};
    QTest::newRow("pitch") << "Pitch, mm"
                           << "1.953" << size << QList<double>{1.953, 7.4, 145, 230};
    QTest::newRow("weight") << "Weight, kg"
                            << "0.25" << size << QList<double>{2.6, 0.25, 145, 230};
    QTest::newRow("power") << "Power, W"
                           << "1000000" << size << QList<double>{2.6, 7.4, 1000000, 230};
    QTest::newRow("voltage") << "Voltage, V"
                             << "0" << size << QList<double>{2.6, 7.4, 145, 0};
}

void tst_WallModels::everyNumberFieldChangesItsOwn()
{
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QSize, size);
    QFETCH(QList<double>, numbers);
    Fixture f;
    const CabinetModel before = f.model();
    f.typeNumber(f.field<QAbstractSpinBox>(field), typed);
    const CabinetModel after = f.model();
    QCOMPARE(after.size, size);
    QCOMPARE((QList<double>{after.pitch, after.weight, after.power, after.voltage}), numbers);
    QCOMPARE(after.name, before.name);
    QCOMPARE(after.family, before.family);
    QCOMPARE(f.fields()->problem(), QString());
    f.document.undoStack()->undo();
    QVERIFY(f.model() == before);
}

void tst_WallModels::arrowsOfOneVisitAreOneStep()
{
    Fixture f;
    const QPoint up = arrowOf(f.width(), QStyle::SC_SpinBoxUp);
    f.width()->setFocus();
    for (int i = 0; i < 3; ++i)
        windowmouse::click(f.width(), Qt::LeftButton, up);
    QCOMPARE(f.model().size.width(), 195);
    QCOMPARE(f.steps(), 1);
    f.pitch()->setFocus();
    f.width()->setFocus();
    QTest::keyClick(f.width(), Qt::Key_Up);
    QCOMPARE(f.steps(), 2);
    f.document.undoStack()->undo();
    QCOMPARE(f.width()->value(), 195);
    f.document.undoStack()->undo();
    QCOMPARE(f.width()->value(), 192);
}

void tst_WallModels::backToTheStartLeavesNoStep()
{
    Fixture f;
    f.width()->setFocus();
    QTest::keyClick(f.width(), Qt::Key_Up);
    QTest::keyClick(f.width(), Qt::Key_Down);
    QCOMPARE(f.model().size.width(), 192);
    QCOMPARE(f.steps(), 0);
}

void tst_WallModels::refusedValuesAreTold_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("problem");
    QTest::newRow("no width") << "Width, px"
                              << "0"
                              << "Width and height have to be from 1 to 65536 pixels.";
    QTest::newRow("great height") << "Height, px"
                                  << "65537"
                                  << "Width and height have to be from 1 to 65536 pixels.";
    QTest::newRow("no pitch") << "Pitch, mm"
                              << "0"
                              << "The pitch has to be greater than 0 and at most 1000 mm.";
    QTest::newRow("great power") << "Power, W"
                                 << "1000001" << QString();
}

void tst_WallModels::refusedValuesAreTold()
{
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QString, problem);
    Fixture f;
    const CabinetModel before = f.model();
    auto *box = f.field<QAbstractSpinBox>(field);
    const QString shown = box->text();
    f.typeNumber(box, typed);
    QVERIFY(f.model() == before);
    QCOMPARE(f.steps(), 0);
    QCOMPARE(box->text(), shown);
    if (problem.isEmpty())
        QVERIFY(f.fields()->problem().startsWith("The power"));
    else
        QCOMPARE(f.fields()->problem(), problem);
    QCOMPARE(cutTexts(f.page.data()).join("; "), QString());

    f.typeNumber(f.width(), "64"); // an edit that is accepted
    QCOMPARE(f.fields()->problem(), QString());
    f.typeNumber(box, typed);
    QVERIFY(!f.fields()->problem().isEmpty());
    f.tree()->setCurrentModel(banner);
    QCOMPARE(f.fields()->problem(), QString());
}

void tst_WallModels::emptyNameIsRefused()
{
    Fixture f;
    f.name()->setFocus();
    f.name()->selectAll();
    QTest::keyClick(f.name(), Qt::Key_Backspace);
    QCOMPARE(f.fields()->problem(), QString("A model has to have a name."));
    QCOMPARE(f.name()->text(), QString()); // another one can be typed
    QCOMPARE(f.model().name, QString("Stage 2.6"));
    f.width()->setFocus();
    QCOMPARE(f.name()->text(), QString("Stage 2.6"));
    QCOMPARE(f.steps(), 0);
}

void tst_WallModels::nameWarnsOfFileNames()
{
    Fixture f;
    f.name()->setFocus();
    QTest::keyClick(f.name(), 'a');
    QVERIFY(!QToolTip::isVisible());
    QTest::keyClick(f.name(), Qt::Key_Slash);
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), QString("File names cannot have / \\ : < | \" * > ?"));
    QToolTip::hideText();
}

void tst_WallModels::familyMovesTheRow()
{
    Fixture f;
    f.tree()->setCurrentModel(banner);
    f.tree()->setFocus();
    QTest::keyClick(f.tree(), Qt::Key_Space);
    auto *box = f.field<ComboBoxEx>("Family");
    QCOMPARE(box->count(), 3);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down); // to the family behind Banner
    QCOMPARE(f.model(banner).family, QString("Cube"));
    QCOMPARE(f.steps(), 1);
    QVERIFY(!family(f.tree(), "Banner"));
    QCOMPARE(family(f.tree(), "Cube")->childCount(), 2);
    QCOMPARE(f.tree()->row(banner)->parent(), family(f.tree(), "Cube"));
    QCOMPARE(f.tree()->row(banner)->checkState(0), Qt::Unchecked);
    QCOMPARE(f.tree()->currentModel(), banner);
    QCOMPARE(f.row(banner)->getCabinetName(), QString("Banner 5.2"));
    f.document.undoStack()->undo();
    QCOMPARE(f.tree()->row(banner)->parent(), family(f.tree(), "Banner"));
    QCOMPARE(family(f.tree(), "Cube")->childCount(), 1);
    QCOMPARE(box->currentText(), QString("Banner"));
    QCOMPARE(f.tree()->checkedModels().size(), 4);
}

void tst_WallModels::onlyTheRowThatChangedIsMadeAnew()
{
    Fixture f;
    const QPointer<TreeItem> other(f.row(banner));
    const QPointer<TreeItem> changed(f.row(panel));
    f.typeNumber(f.pitch(), "3");
    QCOMPARE(f.row(panel), changed.data()); // it shows no pitch
    f.typeNumber(f.width(), "64");
    QVERIFY(f.row(panel) != changed.data());
    QCOMPARE(f.row(banner), other.data());
    QVERIFY(other);
    QVERIFY(f.row(panel)->isVisible());
    QCOMPARE(f.tree()->currentModel(), panel);
}

void tst_WallModels::wheelLeavesAnUnchosenFieldAlone()
{
    Fixture f;
    f.name()->setFocus();
    pointer::turnWheel(f.width(), 1);
    QCOMPARE(f.width()->value(), 192);
    f.width()->setFocus();
    pointer::turnWheel(f.width(), 1);
    QCOMPARE(f.width()->value(), 193);
}

void tst_WallModels::totalsAreThoseOfTheWall()
{
    Fixture f;
    // 240 panels, 20 halves, 48 columns, 15 banners, 80 cubes
    const qint64 pixels = 240 * 36864 + 20 * 18432 + 48 * 18432 + 15 * 32768 + 80 * 16384;
    QCOMPARE(pixels, qint64(11902976));
    QCOMPARE(f.totals("wall"), QStringList({"403", "11,902,976", "2,918.1 kg", "52,582 W"}));
    QCOMPARE(f.totals("checked"), f.totals("wall"));
}

void tst_WallModels::totalsOfCheckedModels()
{
    Fixture f;
    f.tree()->row(panel)->setCheckState(0, Qt::Unchecked);
    // 163 cabinets, 1776.0 and 34800 less
    QTRY_COMPARE(f.totals("checked"), QStringList({"163", "3,055,616", "1,142.1 kg", "17,782 W"}));
    QCOMPARE(f.totals("wall").first(), QString("403"));
    f.tree()->row(panel)->setCheckState(0, Qt::Checked);
    QTRY_COMPARE(f.totals("checked"), f.totals("wall"));
}

void tst_WallModels::totalsAreLive()
{
    Fixture f;
    f.tree()->row("cube-39")->setCheckState(0, Qt::Unchecked);
    f.document.push(
        new RemoveCabinetsCommand(f.project(), f.project()->cabinetsOfModel("cube-39")));
    QTRY_COMPARE(f.text("wallCabinets"), QString("323"));
    QCOMPARE(f.totals("checked"), f.totals("wall"));
    f.typeNumber(f.field<DoubleSpinBoxEx>("Weight, kg"), "17.4"); // 240 panels, 10 kg more each
    QTRY_COMPARE(f.text("wallWeight"), QString("4,662.1 kg"));
    f.document.undoStack()->undo();
    f.document.undoStack()->undo();
    QTRY_COMPARE(f.text("wallWeight"), QString("2,918.1 kg"));
    QCOMPARE(f.text("wallCabinets"), QString("403"));
}

void tst_WallModels::previewIsToScale()
{
    Fixture f;
    const QRectF panelRect = f.preview()->cabinetRect(); // 499.2 by 499.2 mm
    f.tree()->setCurrentModel(banner); // 1331.2 by 665.6 mm
    const QRectF bannerRect = f.preview()->cabinetRect();
    QVERIFY(QRectF(f.preview()->rect()).contains(bannerRect));
    QVERIFY(qAbs(bannerRect.width() / panelRect.width() - 1331.2 / 499.2) < 0.001);
    QVERIFY(qAbs(bannerRect.height() / panelRect.height() - 665.6 / 499.2) < 0.001);
    QCOMPARE(panelRect.width(), panelRect.height());
    f.typeNumber(f.pitch(), "2.6"); // half as large, the cube's 499.2 mm the largest then
    const QRectF halved = f.preview()->cabinetRect();
    QVERIFY(qAbs(halved.width() / halved.height() - 2.0) < 0.001);
    QVERIFY(halved.width() > bannerRect.width() / 2);
}

void tst_WallModels::previewShowsUnits()
{
    Fixture f;
    QRadioButton *inch = nullptr;
    QRadioButton *millimetre = nullptr;
    const QList<RadioButtonEx *> buttons = f.page->findChildren<RadioButtonEx *>();
    for (RadioButtonEx *button : buttons)
        (button->text() == "inch" ? inch : millimetre) = button;
    QVERIFY(inch && millimetre && millimetre->isChecked());
    const QImage metric = f.preview()->grab().toImage();
    windowmouse::click(inch);
    const QImage imperial = f.preview()->grab().toImage();
    QVERIFY(imperial != metric);
    windowmouse::click(millimetre);
    QCOMPARE(f.preview()->grab().toImage(), metric);
    QCOMPARE(f.steps(), 0);
}

void tst_WallModels::brightnessDimsThePicture()
{
    Fixture f;
    auto *slider = f.page->findChild<SliderEx *>();
    QCOMPARE(slider->value(), 80);
    auto *grid = f.page->findChild<CheckBoxEx *>();
    grid->setChecked(false);
    const QPoint white = f.preview()->cabinetRect().topLeft().toPoint() + QPoint(4, 4);
    QCOMPARE(pointer::colorAt(f.preview(), white), QColor(188, 188, 188)); // of 235
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_End);
    QCOMPARE(pointer::colorAt(f.preview(), white), QColor(235, 235, 235));
    QTest::keyClick(slider, Qt::Key_Home);
    QCOMPARE(pointer::colorAt(f.preview(), white), QColor(0, 0, 0));
}

void tst_WallModels::gridCanBeHidden()
{
    Fixture f;
    auto *grid = f.page->findChild<CheckBoxEx *>();
    QVERIFY(grid->isChecked());
    const QRectF cabinet = f.preview()->cabinetRect();
    const double square = f.preview()->gridStep() * cabinet.width() / 192;
    QVERIFY(square >= 8.0 && square < 16.0);
    const QImage with = f.preview()->grab().toImage();
    windowmouse::click(grid, Qt::LeftButton, QPoint(8, grid->height() / 2));
    QVERIFY(!grid->isChecked());
    QVERIFY(f.preview()->grab().toImage() != with);
}

void tst_WallModels::anotherProjectIsShownAnew()
{
    Fixture f;
    f.tree()->row(panel)->setCheckState(0, Qt::Unchecked);
    f.tree()->setCurrentModel(banner);
    f.document.reset(*generateProject(12), QString());
    QCOMPARE(f.tree()->topLevelItemCount(), 1);
    QCOMPARE(f.tree()->currentModel(), QString("field-39"));
    QCOMPARE(f.tree()->checkedModels(), f.project()->modelIds());
    QCOMPARE(f.name()->text(), QString("Field 3.9"));
    QTRY_COMPARE(f.text("wallCabinets"), QString("12"));
    QVERIFY(!f.preview()->cabinetRect().isNull());
}

void tst_WallModels::emptyProjectHasNothingToEdit()
{
    Fixture f;
    f.document.reset(ProjectData(), QString());
    QCOMPARE(f.tree()->currentModel(), QString());
    QVERIFY(!f.fields()->isEnabled());
    QVERIFY(f.preview()->cabinetRect().isNull());
    QTRY_COMPARE(f.totals("wall"), QStringList({"0", "0", "0.0 kg", "0 W"}));
    f.preview()->grab();
    f.document.reset(demoProject(), QString());
    QVERIFY(f.fields()->isEnabled());
    QCOMPARE(f.name()->text(), QString("Stage 2.6"));
}

void tst_WallModels::textsOfMeasures()
{
    QCOMPARE(lengthText(499.2, LengthUnit::Millimetre), QString("499.2 mm"));
    QCOMPARE(lengthText(508, LengthUnit::Inch), QString("20.00 in"));
    QCOMPARE(areaText(QSizeF(1331.2, 665.6), LengthUnit::Millimetre),
             QString("1,331.2 × 665.6 mm"));
    QCOMPARE(countText(1234567890123), QString("1,234,567,890,123"));
    QCOMPARE(weightText(1234.56), QString("1,234.6 kg"));
    QCOMPARE(powerText(0), QString("0 W"));
}

void tst_WallModels::nothingIsCut_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("smallest") << QSize(1100, 640);
    QTest::newRow("full HD") << QSize(1920, 1080);
    QTest::newRow("very large") << QSize(3840, 2160);
}

void tst_WallModels::nothingIsCut()
{
    QFETCH(QSize, size);
    Fixture f;
    f.page->resize(size);
    QCOMPARE(cutTexts(f.page.data()).join("; "), QString());
    QCOMPARE(f.page->size(), size);
    QVERIFY(f.page->minimumSizeHint().width() <= 1100);
    QVERIFY(f.page->minimumSizeHint().height() <= 640);
}

ORVANE_TEST_MAIN(tst_WallModels)
#include "tst_wallmodels.moc"
