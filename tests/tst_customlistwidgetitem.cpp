#include "support/pointer.h"
#include "support/spaciousstyle.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <customlistwidgetitem.h>

namespace
{

const QString trashSheet =
    "QToolButton{border-image: "
    "url(:/Resource/Images/globalResource/listwidget/trash_normal.png);}QToolButton:hover{"
    "border-image: url(:/Resource/Images/globalResource/listwidget/trash_hover.png);}"
    "QToolButton:pressed{border-image: "
    "url(:/Resource/Images/globalResource/listwidget/trash_pressed.png);}";

template <typename Part> Part *part(const CustomListWidgetItem &row, int index)
{
    return qobject_cast<Part *>(row.layout()->itemAt(index)->widget());
}

QToolButton *iconButton(const CustomListWidgetItem &row)
{
    return part<QToolButton>(row, 0);
}

QLabel *textLabel(const CustomListWidgetItem &row)
{
    return part<QLabel>(row, 1);
}

QToolButton *deleteButton(const CustomListWidgetItem &row)
{
    return part<QToolButton>(row, 2);
}

/// Brings the pointer from beside the row \a row onto it and waits for the trash button.
void enter(CustomListWidgetItem *row)
{
    pointer::moveTo(row->window(), {5, 5});
    pointer::moveTo(row);
    QTRY_VERIFY(deleteButton(*row)->isVisible() && deleteButton(*row)->x() > 0);
}

/// A window with a row that the pointer can enter and leave.
struct Shown {
    Shown()
    {
        window->resize(400, 100);
        row = new CustomListWidgetItem(window.get());
        row->setGeometry(20, 30, 300, 34);
    }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QPointer<CustomListWidgetItem> row;
};

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)

class TestCustomListWidgetItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<CustomListWidgetItem *>(); }

    void isBuiltFromItsParts()
    {
        QWidget parent;
        CustomListWidgetItem row(&parent);
        QCOMPARE(row.parentWidget(), &parent);
        QCOMPARE(row.getProjectPath(), QString());
        QCOMPARE(row.toolTip(), QString());
        QCOMPARE(row.styleSheet(), QString());

        auto *layout = qobject_cast<QHBoxLayout *>(row.layout());
        QVERIFY(layout);
        QCOMPARE(layout->count(), 3);
        QCOMPARE(layout->spacing(), 6);
        QCOMPARE(layout->contentsMargins(), QMargins(10, 0, 20, 0));

        QVERIFY(iconButton(row));
        QCOMPARE(iconButton(row)->minimumSize(), QSize(20, 20));
        QCOMPARE(iconButton(row)->maximumSize(), QSize(20, 20));
        QCOMPARE(iconButton(row)->contentsMargins(), QMargins(0, 0, 6, 0));
        QVERIFY(iconButton(row)->icon().isNull());
        QCOMPARE(iconButton(row)->styleSheet(), QString());

        QVERIFY(textLabel(row));
        QCOMPARE(textLabel(row)->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(textLabel(row)->text(), QString());

        QVERIFY(deleteButton(row));
        QCOMPARE(deleteButton(row)->minimumWidth(), 15);
        QCOMPARE(deleteButton(row)->maximumWidth(), 17);
        QCOMPARE(deleteButton(row)->styleSheet(), trashSheet);
        QVERIFY(deleteButton(row)->isHidden());
        QVERIFY(!iconButton(row)->isHidden());
    }

    void aRowWithoutAParentIsAWindow()
    {
        CustomListWidgetItem row(nullptr);
        QVERIFY(row.isWindow());
        CustomListWidgetItem another;
        QVERIFY(!another.parentWidget());
    }

    void declaresItsSignalsAndItsSlot()
    {
        const QMetaObject &meta = CustomListWidgetItem::staticMetaObject;
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        }
        QCOMPARE(
            methods,
            (QStringList{"signal_notifyProjectPath(CustomListWidgetItem*,QString)",
                         "signal_notifyDeleteItem(CustomListWidgetItem*)", "slot_deleteItem()"}));
    }

    void textAndPathAreTheHosts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("path");
        QTest::newRow("plain") << "Stage left"
                               << "/walls/stage left.wall";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("null") << QString() << QString();
        QTest::newRow("Chinese") << "舞台"
                                 << "D:\\项目\\舞台.wall";
        QTest::newRow("very long") << QString(10000, 'w') << QString(10000, '/');
    }

    void textAndPathAreTheHosts()
    {
        QFETCH(QString, text);
        QFETCH(QString, path);
        CustomListWidgetItem row;
        row.setDisplayInfo("before");
        row.setValueInfo("before");
        row.setDisplayInfo(text);
        QCOMPARE(textLabel(row)->text(), text);
        QCOMPARE(row.getProjectPath(), QString("before"));
        row.setValueInfo(path);
        QCOMPARE(row.getProjectPath(), path);
        QCOMPARE(row.toolTip(), path);
        QCOMPARE(textLabel(row)->text(), text);
        row.resize(300, 34);
        QVERIFY(pointer::showAndWait(&row));
        row.grab();
    }

    void theWarningIconComesAndGoes()
    {
        CustomListWidgetItem row;
        row.setValidIcon(true);
        QVERIFY(!iconButton(row)->icon().isNull());
        QCOMPARE(iconButton(row)->styleSheet(), QString("border:none"));
        const QImage expected = QIcon(":/Resource/Images/globalResource/listwidget/pathWarning.png")
                                    .pixmap(16, 16)
                                    .toImage();
        QVERIFY(!expected.isNull());
        QCOMPARE(iconButton(row)->icon().pixmap(16, 16).toImage(), expected);
        row.setValidIcon(false);
        QVERIFY(iconButton(row)->icon().isNull());
        QCOMPARE(iconButton(row)->styleSheet(), QString("border:none"));
        row.setValidIcon(true);
        QVERIFY(!iconButton(row)->icon().isNull());

        CustomListWidgetItem valid;
        valid.setValidIcon(false);
        QVERIFY(iconButton(valid)->icon().isNull());
        QCOMPARE(iconButton(valid)->styleSheet(), QString("border:none"));
    }

    void liesFromLeftToRight()
    {
        Shown shown;
        shown.row->setValidIcon(false);
        shown.row->setDisplayInfo("Stage left");
        QVERIFY(pointer::showAndWait(shown.window.get()));
        pointer::moveTo(shown.window.get(), {5, 5});
        QCOMPARE(iconButton(*shown.row)->geometry(), QRect(10, 7, 20, 20));
        QCOMPARE(textLabel(*shown.row)->geometry(), QRect(36, 0, 300 - 36 - 20, 34));
        pointer::moveTo(shown.row);
        QTRY_COMPARE(deleteButton(*shown.row)->x() + deleteButton(*shown.row)->width(), 280);
        QCOMPARE(textLabel(*shown.row)->geometry().right() + 1, deleteButton(*shown.row)->x() - 6);
        QVERIFY(deleteButton(*shown.row)->width() >= 15);
        QVERIFY(deleteButton(*shown.row)->width() <= 17);
    }

    void keepsItsDistancesUnderAnyStyle()
    {
        SpaciousStyle style;
        CustomListWidgetItem row;
        row.setStyle(&style);
        QCOMPARE(row.layout()->spacing(), 6);
        QCOMPARE(row.layout()->contentsMargins(), QMargins(10, 0, 20, 0));
    }

    void thePointerBringsTheTrashButton()
    {
        Shown shown;
        QVERIFY(pointer::showAndWait(shown.window.get()));
        pointer::moveTo(shown.window.get(), {5, 5});
        QVERIFY(!deleteButton(*shown.row)->isVisible());
        pointer::moveTo(shown.row);
        QVERIFY(deleteButton(*shown.row)->isVisible());
        QCOMPARE(shown.row->cursor().shape(), Qt::PointingHandCursor);
        // Over its own parts the pointer is still over the row.
        pointer::moveTo(deleteButton(*shown.row));
        QVERIFY(deleteButton(*shown.row)->isVisible());
        QCOMPARE(shown.row->cursor().shape(), Qt::PointingHandCursor);
        pointer::moveTo(shown.window.get(), {5, 5});
        QVERIFY(!deleteButton(*shown.row)->isVisible());
        QCOMPARE(shown.row->cursor().shape(), Qt::ArrowCursor);
        pointer::moveTo(shown.row);
        QVERIFY(deleteButton(*shown.row)->isVisible());
    }

    void onlyALeftPressAsksForTheProject_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<int>("count");
        QTest::newRow("left") << Qt::LeftButton << 1;
        QTest::newRow("right") << Qt::RightButton << 0;
        QTest::newRow("middle") << Qt::MiddleButton << 0;
    }

    void onlyALeftPressAsksForTheProject()
    {
        QFETCH(Qt::MouseButton, button);
        QFETCH(int, count);
        Shown shown;
        shown.row->setValueInfo("/walls/lobby.wall");
        QVERIFY(pointer::showAndWait(shown.window.get()));
        QSignalSpy asked(shown.row, &CustomListWidgetItem::signal_notifyProjectPath);
        QSignalSpy deleted(shown.row, &CustomListWidgetItem::signal_notifyDeleteItem);
        windowmouse::press(shown.row, button); // on the press, over the text
        QCOMPARE(asked.count(), count);
        windowmouse::release(shown.row, button);
        QCOMPARE(asked.count(), count);
        if (count) {
            QCOMPARE(asked.at(0).at(0).value<CustomListWidgetItem *>(), shown.row.data());
            QCOMPARE(asked.at(0).at(1).toString(), QString("/walls/lobby.wall"));
        }
        windowmouse::click(shown.row, button, {2, 2}); // beside all parts
        QCOMPARE(asked.count(), 2 * count);
        QCOMPARE(deleted.count(), 0);
    }

    void theTrashButtonAsksForDeletion()
    {
        Shown shown;
        QVERIFY(pointer::showAndWait(shown.window.get()));
        QSignalSpy asked(shown.row, &CustomListWidgetItem::signal_notifyProjectPath);
        QSignalSpy deleted(shown.row, &CustomListWidgetItem::signal_notifyDeleteItem);
        enter(shown.row);
        windowmouse::press(deleteButton(*shown.row));
        QCOMPARE(deleted.count(), 0);
        windowmouse::release(deleteButton(*shown.row));
        QCOMPARE(deleted.count(), 1);
        QCOMPARE(deleted.at(0).at(0).value<CustomListWidgetItem *>(), shown.row.data());
        windowmouse::click(deleteButton(*shown.row), Qt::RightButton);
        QCOMPARE(deleted.count(), 1);
        shown.row->slot_deleteItem();
        QCOMPARE(deleted.count(), 2);
        QCOMPARE(asked.count(), 0);
    }

    void pressesGoOnToTheList()
    {
        struct Below : QWidget {
            int presses = 0;
            void mousePressEvent(QMouseEvent *) override { ++presses; }
        };
        Below below;
        below.resize(400, 100);
        CustomListWidgetItem row(&below);
        row.setGeometry(20, 30, 300, 34);
        QVERIFY(pointer::showAndWait(&below));
        windowmouse::click(&row);
        QCOMPARE(below.presses, 1);
        windowmouse::click(&row, Qt::RightButton);
        QCOMPARE(below.presses, 2);
    }

    void theRowCanGoInItsSignals_data()
    {
        QTest::addColumn<bool>("onDelete");
        QTest::addColumn<bool>("withWindow");
        QTest::newRow("press, the row") << false << false;
        QTest::newRow("press, the window") << false << true;
        QTest::newRow("trash button, the row") << true << false;
        QTest::newRow("trash button, the window") << true << true;
    }

    void theRowCanGoInItsSignals()
    {
        QFETCH(bool, onDelete);
        QFETCH(bool, withWindow);
        Shown shown;
        int calls = 0;
        const auto act = [&] {
            ++calls;
            if (withWindow)
                shown.window.reset();
            else
                delete shown.row;
        };
        if (onDelete)
            connect(shown.row, &CustomListWidgetItem::signal_notifyDeleteItem, this, act);
        else
            connect(shown.row, &CustomListWidgetItem::signal_notifyProjectPath, this, act);
        QVERIFY(pointer::showAndWait(shown.window.get()));
        enter(shown.row);
        if (onDelete) {
            windowmouse::click(deleteButton(*shown.row));
        } else {
            windowmouse::press(shown.row);
        }
        QCOMPARE(calls, 1);
        QVERIFY(shown.row.isNull());
        QCOMPARE(shown.window == nullptr, withWindow);
    }

    void theTrashButtonCanBeClickedByTheKeyboard()
    {
        Shown shown;
        QVERIFY(pointer::showAndWait(shown.window.get()));
        enter(shown.row);
        connect(shown.row, &CustomListWidgetItem::signal_notifyDeleteItem, this,
                [&] { delete shown.row; });
        deleteButton(*shown.row)->setFocus();
        QTest::keyClick(deleteButton(*shown.row), Qt::Key_Space);
        QVERIFY(shown.row.isNull());
    }

    void nothingOfARowOutlivesIt_data()
    {
        QTest::addColumn<bool>("hasParent");
        QTest::newRow("alone") << false;
        QTest::newRow("with its parent") << true;
    }

    void nothingOfARowOutlivesIt()
    {
        QFETCH(bool, hasParent);
        auto window = std::make_unique<QWidget>();
        auto *row = new CustomListWidgetItem(hasParent ? window.get() : nullptr);
        row->setValidIcon(true);
        QList<QPointer<QObject>> parts;
        for (QObject *child : row->findChildren<QObject *>())
            parts.append(child);
        QCOMPARE(parts.size(), 4);
        if (hasParent)
            window.reset();
        else
            delete row;
        for (const QPointer<QObject> &child : parts)
            QVERIFY(child.isNull());
    }
};

ORVANE_TEST_MAIN(TestCustomListWidgetItem)
#include "tst_customlistwidgetitem.moc"
