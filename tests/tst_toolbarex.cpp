#include "support/pointer.h"
#include "support/testcase.h"

#include <toolbarex.h>
#include <toolbuttonex.h>

namespace
{

ToolButtonEx *addTo(ToolBarEx &bar, ToolBarPosition position)
{
    auto *button = new ToolButtonEx(&bar, DefaultType, QString(), QString());
    bar.addButton(button, position);
    return button;
}

QFrame *groupFrame(const ToolBarEx &bar, ToolBarPosition position)
{
    return qobject_cast<QFrame *>(bar.layout()->itemAt(position == LeftPos ? 0 : 2)->widget());
}

QHBoxLayout *group(const ToolBarEx &bar, ToolBarPosition position)
{
    return qobject_cast<QHBoxLayout *>(groupFrame(bar, position)->layout());
}

QRect inBar(const ToolBarEx &bar, const QWidget *widget)
{
    return QRect(widget->mapTo(&bar, QPoint(0, 0)), widget->size());
}

} // namespace

class TestToolBarEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltOfTwoGroups()
    {
        QWidget parent;
        const ToolBarEx bar(&parent);
        QCOMPARE(bar.parentWidget(), &parent);
        QCOMPARE(bar.styleSheet(), QStringLiteral("QFrame{background:rgb(69, 69, 69);}"));
        QCOMPARE(bar.frameShape(), QFrame::Box);
        QCOMPARE(bar.frameShadow(), QFrame::Raised);
        QCOMPARE(bar.minimumHeight(), 40);
        QCOMPARE(bar.maximumHeight(), 40);
        QCOMPARE(bar.minimumWidth(), 0);
        QCOMPARE(bar.maximumWidth(), QWIDGETSIZE_MAX);
        QCOMPARE(bar.contentsMargins(), QMargins(0, 0, 0, 0));

        auto *layout = qobject_cast<QHBoxLayout *>(bar.layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->count(), 3);
        QVERIFY(layout->itemAt(1)->spacerItem());
        QCOMPARE(layout->stretch(0), 0);
        QCOMPARE(layout->stretch(1), 10);
        QCOMPARE(layout->stretch(2), 0);
        for (ToolBarPosition position : {LeftPos, RightPos}) {
            const QFrame *frame = groupFrame(bar, position);
            QVERIFY(frame);
            QCOMPARE(frame->parentWidget(), &bar);
            QCOMPARE(frame->frameShape(), QFrame::NoFrame);
            QCOMPARE(frame->frameShadow(), QFrame::Plain);
            QCOMPARE(frame->lineWidth(), 0);
            QCOMPARE(frame->contentsMargins(), QMargins(0, 0, 0, 0));
            QVERIFY(group(bar, position));
            QCOMPARE(group(bar, position)->count(), 0);
        }
        QCOMPARE(group(bar, LeftPos)->contentsMargins(), QMargins(16, 5, 0, 5));
        QCOMPARE(group(bar, RightPos)->contentsMargins(), QMargins(0, 5, 16, 5));
    }

    void positionsHaveTheirValues()
    {
        QCOMPARE(int(LeftPos), 0);
        QCOMPARE(int(RightPos), 1);
    }

    void buttonsGoToTheirGroup()
    {
        ToolBarEx bar;
        const ToolButtonEx *left = addTo(bar, LeftPos);
        const ToolButtonEx *secondLeft = addTo(bar, LeftPos);
        const ToolButtonEx *right = addTo(bar, RightPos);
        const ToolButtonEx *secondRight = addTo(bar, RightPos);
        for (const ToolButtonEx *button : {left, secondLeft, right, secondRight}) {
            QCOMPARE(button->minimumSize(), QSize(30, 30));
            QCOMPARE(button->maximumSize(), QSize(30, 30));
            QCOMPARE(button->contentsMargins(), QMargins(0, 0, 0, 0));
        }
        QCOMPARE(group(bar, LeftPos)->count(), 2);
        QCOMPARE(group(bar, LeftPos)->itemAt(0)->widget(), left);
        QCOMPARE(group(bar, LeftPos)->itemAt(1)->widget(), secondLeft);
        QCOMPARE(group(bar, RightPos)->itemAt(0)->widget(), right);
        QCOMPARE(group(bar, RightPos)->itemAt(1)->widget(), secondRight);

        bar.resize(600, 40);
        QVERIFY(pointer::showAndWait(&bar));
        QCOMPARE(bar.size(), QSize(600, 40));
        QCOMPARE(bar.contentsMargins(), QMargins(0, 0, 0, 0)); // the style adds nothing either
        const int leftGap = group(bar, LeftPos)->spacing();
        const int rightGap = group(bar, RightPos)->spacing();
        QCOMPARE(inBar(bar, left), QRect(16, 5, 30, 30));
        QCOMPARE(inBar(bar, secondLeft), QRect(46 + leftGap, 5, 30, 30));
        QCOMPARE(inBar(bar, secondRight), QRect(600 - 16 - 30, 5, 30, 30));
        QCOMPARE(inBar(bar, right), QRect(600 - 16 - 60 - rightGap, 5, 30, 30));
    }

    void marginsOfAButtonAreTakenAway()
    {
        ToolBarEx bar;
        ToolButtonEx button(&bar, DefaultType, "", "");
        button.setContentsMargins(3, 4, 5, 6);
        bar.addButton(&button, LeftPos);
        QCOMPARE(button.contentsMargins(), QMargins(0, 0, 0, 0));
    }

    void widgetsStayAsTheyAre()
    {
        ToolBarEx bar;
        auto *left = new QLabel("left");
        auto *right = new QLabel("right");
        left->setFixedSize(70, 22);
        left->setContentsMargins(1, 2, 3, 4);
        bar.addWidget(left, LeftPos);
        bar.addWidget(right, RightPos);
        QCOMPARE(left->minimumSize(), QSize(70, 22));
        QCOMPARE(left->maximumSize(), QSize(70, 22));
        QCOMPARE(left->contentsMargins(), QMargins(1, 2, 3, 4));
        QCOMPARE(right->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        QCOMPARE(group(bar, LeftPos)->itemAt(0)->widget(), left);
        QCOMPARE(group(bar, RightPos)->itemAt(0)->widget(), right);
        bar.resize(600, 40);
        QVERIFY(pointer::showAndWait(&bar));
        QCOMPARE(inBar(bar, left), QRect(16, 9, 70, 22));
        QCOMPARE(inBar(bar, right).right(), 600 - 16 - 1);
    }

    void separatorGoesToTheLeft()
    {
        ToolBarEx bar;
        const ToolButtonEx *left = addTo(bar, LeftPos);
        addTo(bar, RightPos);
        bar.addSeparator(); // whatever side the last button went to
        const ToolButtonEx *behind = addTo(bar, LeftPos);
        QCOMPARE(group(bar, RightPos)->count(), 1);
        QCOMPARE(group(bar, LeftPos)->count(), 3);
        auto *separator = qobject_cast<QHBoxLayout *>(group(bar, LeftPos)->itemAt(1)->layout());
        QVERIFY(separator);
        QCOMPARE(separator->contentsMargins(), QMargins(6, 0, 6, 0));
        QCOMPARE(separator->count(), 1);
        auto *line = qobject_cast<QFrame *>(separator->itemAt(0)->widget());
        QVERIFY(line);
        QCOMPARE(line->frameShape(), QFrame::VLine);
        QCOMPARE(line->minimumSize(), QSize(1, 20));
        QCOMPARE(line->maximumSize(), QSize(1, 20));
        QCOMPARE(line->styleSheet(),
                 QStringLiteral("background-color: rgb(112, 112, 112); border:0;"));
        QVERIFY(bar.isAncestorOf(line));

        bar.resize(600, 40);
        QVERIFY(pointer::showAndWait(&bar));
        const int gap = group(bar, LeftPos)->spacing();
        QCOMPARE(inBar(bar, line), QRect(16 + 30 + gap + 6, 10, 1, 20));
        QCOMPARE(inBar(bar, behind).left(), inBar(bar, line).left() + 1 + 6 + gap);
        QCOMPARE(inBar(bar, left), QRect(16, 5, 30, 30));
        QCOMPARE(pointer::colorAt(&bar, inBar(bar, line).topLeft()), QColor(112, 112, 112));
        QCOMPARE(pointer::colorAt(&bar, inBar(bar, line).bottomLeft()), QColor(112, 112, 112));
        QCOMPARE(pointer::colorAt(&bar, inBar(bar, line).topLeft() - QPoint(0, 1)),
                 QColor(69, 69, 69));
    }

    void separatorsShowInAShownBar()
    {
        ToolBarEx bar;
        bar.resize(600, 40);
        QVERIFY(pointer::showAndWait(&bar));
        bar.addSeparator();
        const auto *line = group(bar, LeftPos)->itemAt(0)->layout()->itemAt(0)->widget();
        QTRY_VERIFY(line->isVisible());
        QTRY_COMPARE(inBar(bar, line), QRect(22, 10, 1, 20));
    }

    void groundIsDark()
    {
        ToolBarEx bar;
        addTo(bar, LeftPos);
        addTo(bar, RightPos);
        bar.resize(300, 40);
        QVERIFY(pointer::showAndWait(&bar));
        for (QPoint position : {QPoint(150, 20), QPoint(5, 20), QPoint(295, 20), QPoint(20, 2)})
            QCOMPARE(pointer::colorAt(&bar, position), QColor(69, 69, 69));
    }

    void nothingIsIgnored()
    {
        ToolBarEx bar;
        bar.addButton(nullptr, LeftPos);
        bar.addWidget(nullptr, RightPos);
        QLabel label;
        bar.addWidget(&label, static_cast<ToolBarPosition>(2));
        QVERIFY(!label.parent());
        QCOMPARE(group(bar, LeftPos)->count(), 0);
        QCOMPARE(group(bar, RightPos)->count(), 0);
    }

    void ownsWhatItIsGiven()
    {
        auto *bar = new ToolBarEx;
        const QPointer<ToolButtonEx> button = new ToolButtonEx(nullptr, DefaultType, "", "");
        const QPointer<QLabel> label = new QLabel;
        const QPointer<ToolButtonEx> early = addTo(*bar, LeftPos);
        bar->addButton(button, LeftPos);
        bar->addWidget(label, RightPos);
        bar->addSeparator();
        QVERIFY(pointer::showAndWait(bar));
        delete early.data();
        QCOMPARE(group(*bar, LeftPos)->count(), 2);
        delete bar;
        QVERIFY(button.isNull());
        QVERIFY(label.isNull());
    }

    void canBeDeletedInTheSignalOfAButton()
    {
        auto *bar = new ToolBarEx;
        const QPointer<ToolBarEx> guard(bar);
        ToolButtonEx *button = addTo(*bar, RightPos);
        QVERIFY(pointer::showAndWait(bar));
        connect(button, &QToolButton::clicked, this, [bar] { delete bar; });
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(guard.isNull());
    }

    void addsNothingToTheMetaObject()
    {
        const QMetaObject &meta = ToolBarEx::staticMetaObject;
        QCOMPARE(meta.methodOffset(), meta.methodCount());
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QFrame"));
    }
};

ORVANE_TEST_MAIN(TestToolBarEx)
#include "tst_toolbarex.moc"
