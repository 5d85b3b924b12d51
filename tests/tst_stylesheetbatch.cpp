#include "support/pointer.h"
#include "support/testcase.h"

#include <orvanecontrols/labelex.h>
#include <orvanecontrols/lineeditex.h>
#include <orvanecontrols/stylesheetbatch.h>
#include <orvanecontrols/toolbuttonex.h>

#include <memory>
#include <new>

namespace
{

/// Counts how often a widget is told of a new style while this lives.
class StyleChangeCounter : public QObject
{
public:
    explicit StyleChangeCounter(QWidget *watched) { watched->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == QEvent::StyleChange;
        return false;
    }
};

void setTwentyValues(LineEditEx *edit)
{
    for (int i = 1; i <= 10; ++i) {
        edit->setBorderWidth(1 + i);
        edit->setBackgroundColor(QColor(0, 0, 10 * i));
    }
}

} // namespace

class TestStyleSheetBatch : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutOneEachSetterApplies()
    {
        LineEditEx edit;
        QVERIFY(pointer::showAndWait(&edit));
        const StyleChangeCounter changes(&edit);
        setTwentyValues(&edit);
        QCOMPARE(changes.count, 20);
    }

    void settersWaitAndTheLastSheetIsAppliedOnce()
    {
        LineEditEx edit;
        edit.resize(100, 40);
        QVERIFY(pointer::showAndWait(&edit));
        const QString before = edit.styleSheet();
        const QColor groundBefore = pointer::colorAt(&edit, QPoint(50, 20));
        const StyleChangeCounter changes(&edit);
        {
            const StyleSheetBatch batch(&edit);
            setTwentyValues(&edit);
            QCOMPARE(changes.count, 0);
            QCOMPARE(edit.styleSheet(), before);
            QCOMPARE(pointer::colorAt(&edit, QPoint(50, 20)), groundBefore);
            QCOMPARE(edit.borderWidth(), 11);
            QCOMPARE(edit.backgroundColor(), QColor(0, 0, 100));
        }
        QCOMPARE(changes.count, 1);
        QVERIFY2(edit.styleSheet().contains("border: 11px"), qPrintable(edit.styleSheet()));
        QVERIFY2(edit.styleSheet().contains("#000064"), qPrintable(edit.styleSheet()));
        QCOMPARE(pointer::colorAt(&edit, QPoint(50, 20)), QColor(0, 0, 100));
    }

    void aSheetThatEndsAsItBeganIsNotApplied()
    {
        LineEditEx edit;
        QVERIFY(pointer::showAndWait(&edit));
        const int width = edit.borderWidth();
        const StyleChangeCounter changes(&edit);
        {
            const StyleSheetBatch batch(&edit);
            edit.setBorderWidth(width + 1);
            edit.setBorderWidth(width);
        }
        QCOMPARE(changes.count, 0);
    }

    void otherWidgetsDoNotWait()
    {
        QWidget window;
        LineEditEx covered(&window);
        LineEditEx sibling(&window);
        const StyleSheetBatch batch(&covered);
        sibling.setBackgroundColor(QColor(1, 2, 3));
        QVERIFY(sibling.styleSheet().contains("#010203"));
    }

    void childrenWaitWithTheirParent()
    {
        ToolButtonEx button(nullptr, LeftToRightType, QString(), QString());
        const StyleChangeCounter changes(button.pLabelRight());
        const QString before = button.pLabelRight()->styleSheet();
        {
            const StyleSheetBatch batch(&button);
            button.setRightLabelTextNormalColor(QColor(1, 2, 3));
            button.setRightLabelTextNormalColor(QColor(4, 5, 6));
            QCOMPARE(button.pLabelRight()->styleSheet(), before);
        }
        QVERIFY(!before.contains("#040506"));
        QVERIFY(button.pLabelRight()->styleSheet().contains("#040506"));
    }

    void aWindowOfItsOwnDoesNotWaitWithItsParent()
    {
        QWidget parent;
        LineEditEx popup(&parent);
        popup.setWindowFlags(Qt::Popup);
        const StyleSheetBatch batch(&parent);
        popup.setBackgroundColor(QColor(1, 2, 3));
        QVERIFY(popup.styleSheet().contains("#010203"));
    }

    void widgetsMadeMeanwhileGetTheirSheetAtTheEnd()
    {
        QWidget window;
        std::unique_ptr<LineEditEx> edit;
        {
            const StyleSheetBatch batch(&window);
            edit = std::make_unique<LineEditEx>(&window);
            edit->setBackgroundColor(QColor(1, 2, 3));
            QCOMPARE(edit->styleSheet(), QString());
        }
        QVERIFY(edit->styleSheet().contains("#010203"));
    }

    void theEldestHoldsUntilItEnds()
    {
        LineEditEx edit;
        {
            const StyleSheetBatch outer(&edit);
            {
                const StyleSheetBatch inner(&edit);
                edit.setBackgroundColor(QColor(1, 2, 3));
            }
            QVERIFY(!edit.styleSheet().contains("#010203"));
            edit.setBackgroundColor(QColor(4, 5, 6));
        }
        QVERIFY(edit.styleSheet().contains("#040506"));
    }

    void theEldestHandsOnToOneThatLivesLonger()
    {
        LineEditEx edit;
        auto first = std::make_unique<StyleSheetBatch>(&edit);
        auto second = std::make_unique<StyleSheetBatch>(&edit);
        edit.setBackgroundColor(QColor(1, 2, 3));
        first.reset();
        QVERIFY(!edit.styleSheet().contains("#010203"));
        second.reset();
        QVERIFY(edit.styleSheet().contains("#010203"));
    }

    void theWidgetMayDieFirst()
    {
        auto edit = std::make_unique<LineEditEx>();
        auto batch = std::make_unique<StyleSheetBatch>(edit.get());
        edit->setBackgroundColor(QColor(1, 2, 3));
        edit.reset();
        batch.reset();

        LineEditEx other;
        other.setBackgroundColor(QColor(4, 5, 6));
        QVERIFY(other.styleSheet().contains("#040506"));
    }

    void aWidgetAtADeadOnesAddressGetsItsOwnSheet()
    {
        QWidget window;
        alignas(LineEditEx) unsigned char storage[sizeof(LineEditEx)];
        auto batch = std::make_unique<StyleSheetBatch>(&window);
        auto *first = new (storage) LineEditEx(&window);
        first->setBackgroundColor(QColor(1, 2, 3));
        first->~LineEditEx();
        auto *second = new (storage) LineEditEx(&window);
        second->setBackgroundColor(QColor(4, 5, 6));
        batch.reset();
        QVERIFY(second->styleSheet().contains("#040506"));
        second->~LineEditEx();
    }

    void sheetsSetBeforeTheFirstShowAreTheOnesShown()
    {
        LineEditEx edit;
        edit.resize(100, 40);
        {
            const StyleSheetBatch batch(&edit);
            setTwentyValues(&edit);
        }
        QVERIFY(pointer::showAndWait(&edit));
        QCOMPARE(pointer::colorAt(&edit, QPoint(50, 20)), QColor(0, 0, 100));
    }

    void noWidgetHoldsNothingBack()
    {
        LineEditEx edit;
        const StyleSheetBatch batch(nullptr);
        edit.setBackgroundColor(QColor(1, 2, 3));
        QVERIFY(edit.styleSheet().contains("#010203"));
    }
};

ORVANE_TEST_MAIN(TestStyleSheetBatch)
#include "tst_stylesheetbatch.moc"
