#include "support/countingdelegate.h"
#include "support/pointer.h"
#include "support/sheetimages.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <treeitem.h>
#include <treeviewex.h>

namespace
{

const QString fixedSheet =
    "QTreeView{outline:none;border:none}QTreeView::branch{background:rgb(56,56,56);}"
    "QTreeView::branch:has-children:!has-siblings:closed,QTreeView::branch:closed:has-children:"
    "has-siblings{background:rgb(56,56,56);border-image: none;image: "
    "url(:/Resource/Images/globalResource/drawer/close.png);}"
    "QTreeView::branch:open:has-children:!has-siblings,QTreeView::branch:open:has-children:"
    "has-siblings{background:rgb(56,56,56);border-image: none;image: "
    "url(:/Resource/Images/globalResource/drawer/open.png);}"
    "QTreeView{background:rgb(56,56,56);}"
    "QTreeView:item{background:rgb(56,56,56);image: none;border-radius:5px;}"
    "QTreeView:item:hover{image: none;background-color:rgb(128,128,128);}"
    "QTreeView:item:selected{image: none;background-color:rgb(45,46,48);}";

const QString titleSheet = "font:9pt \"微软雅黑\" ;color: rgb(210, 210, 210);";
const QString sizeSheet = "font:9pt \"微软雅黑\" ;color: rgb(153, 153, 153);";

QLabel *line(const QWidget *item, int index)
{
    return qobject_cast<QLabel *>(item->layout()->itemAt(index)->widget());
}

/// A tree with one expanded family of \a count models.
struct Filled {
    explicit Filled(int count, Qt::CheckState state = Qt::Unchecked)
    {
        tree->resize(300, 400);
        family = new QTreeWidgetItem(tree.get());
        family->setText(0, "Indoor");
        for (int i = 0; i < count; ++i)
            tree->addTreeItem(family, QString("P%1").arg(i), {100 + i, 200 + i}, nullptr, state);
        family->setExpanded(true);
    }

    TreeItem *widget(int row) const
    {
        return qobject_cast<TreeItem *>(tree->itemWidget(family->child(row), 0));
    }

    /// Puts the pointer at a position of the viewport and clicks there.
    void click(QPoint position, Qt::MouseButton button = Qt::LeftButton) const
    {
        QCursor::setPos(tree->viewport()->mapToGlobal(position));
        windowmouse::click(tree->viewport(), button, position);
    }

    QRect rowRect(int row) const { return tree->visualItemRect(family->child(row)); }

    /// Whether the row's widget fills the row from its check box to the right end.
    bool isPlaced(int row) const { return isPlaced(family->child(row)); }
    bool isPlaced(QTreeWidgetItem *row) const
    {
        const QRect rect = tree->visualItemRect(row);
        const QWidget *widget = tree->itemWidget(row, 0);
        const int boxWidth = tree->style()->pixelMetric(QStyle::PM_IndicatorWidth);
        const QRect place = widget->geometry();
        return widget->isVisible() && place.left() >= rect.left() + boxWidth
            && place.left() < rect.left() + 2 * boxWidth && place.top() == rect.top()
            && place.bottomRight() == rect.bottomRight();
    }

    std::unique_ptr<TreeViewEx> tree = std::make_unique<TreeViewEx>();
    QTreeWidgetItem *family = nullptr;
};

void deleteScheduled()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

Q_DECLARE_METATYPE(QTreeWidgetItem *)
Q_DECLARE_METATYPE(Qt::CheckState)
Q_DECLARE_METATYPE(Qt::MouseButton)

class TestTreeViewEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<QTreeWidgetItem *>(); }

    void hasDefaults()
    {
        QWidget parent;
        TreeViewEx tree(&parent);
        QCOMPARE(tree.parentWidget(), &parent);
        QVERIFY(!tree.testAttribute(Qt::WA_MacShowFocusRect));
        QVERIFY(tree.itemsExpandable());
        QVERIFY(tree.isHeaderHidden());
        QCOMPARE(tree.horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QCOMPARE(tree.horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
        QCOMPARE(tree.header()->sectionResizeMode(0), QHeaderView::ResizeToContents);
        QVERIFY(tree.header()->stretchLastSection());
        QCOMPARE(tree.styleSheet(), fixedSheet);
        QVERIFY(tree.strTitleStyle().isNull());
        QVERIFY(tree.strContentStyle().isNull());
        QCOMPARE(tree.topLevelItemCount(), 0);
        TreeViewEx alone(nullptr);
        QVERIFY(!alone.parentWidget());
    }

    void declaresItsSlots()
    {
        const QMetaObject &meta = TreeViewEx::staticMetaObject;
        QCOMPARE(meta.superClass(), &QTreeWidget::staticMetaObject);
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).access(), QMetaMethod::Private);
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        }
        QCOMPARE(methods,
                 (QStringList{"on_itemClicked(QTreeWidgetItem*,int)", "on_rangeChanged(int,int)",
                              "slot_itemChanged(QTreeWidgetItem*,int)"}));
    }

    void theSheetIsFixedAndItsImagesExist()
    {
        TreeViewEx tree;
        tree.setStyleSheet("QTreeView{color:red;}");
        tree.setTreeWidgetStyleSheet();
        QCOMPARE(tree.styleSheet(), fixedSheet);
        const QStringList images = imagePaths(fixedSheet);
        QCOMPARE(images.size(), 2);
        for (const QString &path : images)
            QVERIFY2(!QImage(path).isNull(), qPrintable(path));
    }

    void theSheetIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        TreeViewEx tree;
        tree.resize(200, 200);
        tree.setStyleSheet("QTreeView{background:#ff0000;border:none}");
        tree.setTreeWidgetStyleSheet();
        QVERIFY(pointer::showAndWait(&tree));
        QCOMPARE(pointer::colorAt(&tree, {100, 150}), QColor(56, 56, 56));
        tree.setStyleSheet("QTreeView{background:#ff0000;border:none}");
        QCOMPARE(pointer::colorAt(&tree, {100, 150}), QColor(255, 0, 0));
        tree.setTreeWidgetStyleSheet();
        QCOMPARE(pointer::colorAt(&tree, {100, 150}), QColor(56, 56, 56));
    }

    void aRowIsCheckableAndHasAWidget_data()
    {
        QTest::addColumn<Qt::CheckState>("state");
        QTest::newRow("unchecked") << Qt::Unchecked;
        QTest::newRow("partially checked") << Qt::PartiallyChecked;
        QTest::newRow("checked") << Qt::Checked;
    }

    void aRowIsCheckableAndHasAWidget()
    {
        QFETCH(Qt::CheckState, state);
        QObject object;
        TreeViewEx tree;
        tree.resize(300, 400);
        auto *family = new QTreeWidgetItem(&tree);
        auto *other = new QTreeWidgetItem(&tree);
        tree.addTreeItem(family, "P2.6", {500, 500}, &object, state);
        QCOMPARE(tree.topLevelItemCount(), 2);
        QCOMPARE(other->childCount(), 0);
        QCOMPARE(family->childCount(), 1);
        QTreeWidgetItem *row = family->child(0);
        QVERIFY(row->flags() & Qt::ItemIsUserCheckable);
        QCOMPARE(row->flags(), QTreeWidgetItem().flags() | Qt::ItemIsUserCheckable);
        QCOMPARE(row->checkState(0), state);
        QCOMPARE(row->text(0), QString());
        auto *widget = qobject_cast<TreeItem *>(tree.itemWidget(row, 0));
        QVERIFY(widget);
        QCOMPARE(widget->parentWidget(), tree.viewport());
        QCOMPARE(widget->getCabinetName(), QString("P2.6"));
        QCOMPARE(widget->getCabinetSize(), QSize(500, 500));
        QCOMPARE(widget->getObject(), &object);
        QVERIFY(!object.parent());
        QVERIFY(widget->testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(line(widget, 0)->styleSheet(), titleSheet);
        QCOMPARE(line(widget, 1)->styleSheet(), sizeSheet);

        tree.addTreeItem(family, "P3.9", {1, 2}, nullptr, state);
        QCOMPARE(family->childCount(), 2);
        QVERIFY(!qobject_cast<TreeItem *>(tree.itemWidget(family->child(1), 0))->getObject());
        tree.addTreeItem(row, "below", {1, 2}, nullptr, state); // any depth
        QCOMPARE(row->childCount(), 1);
        QVERIFY(tree.itemWidget(row->child(0), 0));
    }

    void noParentItemAddsNothing()
    {
        Filled filled(1);
        takeDebugMessages();
        filled.tree->addTreeItem(nullptr, "x", {1, 2}, nullptr, Qt::Checked);
        QCOMPARE(filled.tree->topLevelItemCount(), 1);
        QCOMPARE(filled.family->childCount(), 1);
        QCOMPARE(takeDebugMessages(), QStringList());
        // Nor does an item of another tree, whose rows this one could not place.
        TreeViewEx other;
        auto *stranger = new QTreeWidgetItem(&other);
        filled.tree->addTreeItem(stranger, "x", {1, 2}, nullptr, Qt::Checked);
        QCOMPARE(stranger->childCount(), 0);
        QCOMPARE(filled.tree->viewport()->findChildren<TreeItem *>().size(), 1);
    }

    void rowsCanBeAddedBeforeTheirFamilyIs()
    {
        Filled filled(1);
        QVERIFY(pointer::showAndWait(filled.tree.get()));
        auto *family = new QTreeWidgetItem;
        filled.tree->addTreeItem(family, "x", {1, 2}, nullptr, Qt::Checked);
        QCOMPARE(family->childCount(), 1);
        filled.tree->addTopLevelItem(family);
        family->setExpanded(true);
        QWidget *widget = filled.tree->itemWidget(family->child(0), 0);
        QVERIFY(widget);
        QTRY_VERIFY(filled.isPlaced(family->child(0)));
    }

    void sheetsOfTheTreeReachTheRowsToCome()
    {
        Filled filled(1);
        TreeViewEx &tree = *filled.tree;
        tree.setStrTitleStyle("color:red;");
        tree.setStrContentStyle("color:blue;");
        QCOMPARE(tree.strTitleStyle(), QString("color:red;"));
        QCOMPARE(tree.strContentStyle(), QString("color:blue;"));
        tree.addTreeItem(filled.family, "x", {1, 2}, nullptr, Qt::Checked);
        QCOMPARE(line(filled.widget(0), 0)->styleSheet(), titleSheet);
        QCOMPARE(line(filled.widget(0), 1)->styleSheet(), sizeSheet);
        QCOMPARE(line(filled.widget(1), 0)->styleSheet(), QString("color:red;"));
        QCOMPARE(line(filled.widget(1), 1)->styleSheet(), QString("color:blue;"));
        tree.setStrTitleStyle("");
        tree.setStrContentStyle(QString());
        tree.addTreeItem(filled.family, "x", {1, 2}, nullptr, Qt::Checked);
        QCOMPARE(line(filled.widget(2), 0)->styleSheet(), QString());
        QCOMPARE(line(filled.widget(2), 1)->styleSheet(), sizeSheet);
        QCOMPARE(tree.styleSheet(), fixedSheet);
    }

    void rowsHaveTheHeightOfTwoLines()
    {
        Filled filled(3);
        QVERIFY(pointer::showAndWait(filled.tree.get()));
        for (int row = 0; row < 3; ++row) {
            QTRY_VERIFY(filled.isPlaced(row));
            QCOMPARE(filled.rowRect(row).height(), filled.widget(row)->sizeHint().height());
        }
        QVERIFY(filled.rowRect(0).height() >= 10 + 2 * 9);
        QCOMPARE(filled.rowRect(1).top(), filled.rowRect(0).bottom() + 1);
        QCOMPARE(filled.tree->horizontalScrollBar()->maximum(), 0);
    }

    void theColumnKeepsTheWidthThatTheTreeHad()
    {
        Filled filled(1); // the tree is 300 wide
        TreeViewEx &tree = *filled.tree;
        QVERIFY(pointer::showAndWait(&tree));
        QTRY_COMPARE(tree.columnWidth(0), tree.viewport()->width());
        tree.resize(200, 400);
        QTRY_COMPARE(tree.columnWidth(0), 270);
        QTRY_COMPARE(tree.horizontalScrollBar()->maximum(), 270 - tree.viewport()->width());
        QCOMPARE(tree.horizontalScrollBar()->value(), tree.horizontalScrollBar()->maximum());

        tree.addTreeItem(filled.family, "P", {1, 1}, nullptr, Qt::Unchecked);
        QTRY_COMPARE(tree.columnWidth(0), tree.viewport()->width());
        QTRY_COMPARE(tree.horizontalScrollBar()->maximum(), 0);
    }

    void aClickTogglesTheRow_data()
    {
        QTest::addColumn<Qt::CheckState>("before");
        QTest::addColumn<Qt::CheckState>("after");
        QTest::newRow("unchecked") << Qt::Unchecked << Qt::Checked;
        QTest::newRow("partially checked") << Qt::PartiallyChecked << Qt::Checked;
        QTest::newRow("checked") << Qt::Checked << Qt::Unchecked;
    }

    void aClickTogglesTheRow()
    {
        QFETCH(Qt::CheckState, before);
        QFETCH(Qt::CheckState, after);
        Filled filled(3, before);
        QVERIFY(pointer::showAndWait(filled.tree.get()));
        QCoreApplication::processEvents();
        const QRect rect = filled.rowRect(1);
        QTreeWidgetItem *row = filled.family->child(1);
        // The left end, where a box would stand, the lines, and the right end.
        for (const QPoint position :
             {QPoint(rect.left() + 4, rect.center().y()),
              filled.widget(1)->mapTo(filled.tree->viewport(),
                                      line(filled.widget(1), 0)->geometry().center()),
              QPoint(rect.right(), rect.bottom()), rect.topLeft()}) {
            row->setCheckState(0, before);
            filled.click(position);
            QCOMPARE(row->checkState(0), after);
            QCOMPARE(filled.family->child(0)->checkState(0), before);
            QCOMPARE(filled.family->child(2)->checkState(0), before);
        }
        filled.click(rect.center());
        QCOMPARE(row->checkState(0), after == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    }

    void aToggledRowIsReportedBeforeItsFamily_data()
    {
        QTest::addColumn<bool>("isTristate");
        QTest::newRow("plain family") << false;
        QTest::newRow("family that follows its rows") << true;
    }

    void aToggledRowIsReportedBeforeItsFamily()
    {
        QFETCH(bool, isTristate);
        Filled filled(2);
        if (isTristate)
            filled.family->setFlags(filled.family->flags() | Qt::ItemIsAutoTristate);
        QVERIFY(pointer::showAndWait(filled.tree.get()));
        QCoreApplication::processEvents();
        QList<QTreeWidgetItem *> reported;
        connect(filled.tree.get(), &QTreeWidget::itemChanged, this,
                [&](QTreeWidgetItem *item, int column) {
                    QCOMPARE(column, 0);
                    QCOMPARE(filled.family->child(1)->checkState(0), Qt::Checked);
                    reported.append(item);
                });
        filled.click(filled.rowRect(1).center());
        QList<QTreeWidgetItem *> expected = {filled.family->child(1)};
        if (isTristate)
            expected.append(filled.family);
        QCOMPARE(reported, expected);
    }

    void aToggledRowTakesItsOwnRowsAlong()
    {
        Filled filled(1);
        QTreeWidgetItem *row = filled.family->child(0);
        row->setFlags(row->flags() | Qt::ItemIsAutoTristate);
        auto *below = new QTreeWidgetItem(row);
        below->setCheckState(0, Qt::Unchecked);
        QVERIFY(pointer::showAndWait(filled.tree.get()));
        QCoreApplication::processEvents();
        QSignalSpy changed(filled.tree.get(), &QTreeWidget::itemChanged);
        filled.click(filled.rowRect(0).center());
        QCOMPARE(row->checkState(0), Qt::Checked);
        QCOMPARE(below->checkState(0), Qt::Checked);
        QVERIFY(changed.count() >= 2);
    }

    void otherClicksDoNotToggle()
    {
        Filled filled(2);
        QVERIFY(pointer::showAndWait(filled.tree.get()));
        QCoreApplication::processEvents();
        QTreeWidgetItem *row = filled.family->child(1);
        QSignalSpy clicked(filled.tree.get(), &QTreeWidget::itemClicked);
        const QRect rect = filled.rowRect(1);
        filled.click(rect.center(), Qt::RightButton);
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(row->checkState(0), Qt::Unchecked);
        // On the indentation the row is clicked, but not its widget.
        filled.click({rect.left() - 5, rect.center().y()});
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(row->checkState(0), Qt::Unchecked);
        // A click that is only reported, with the pointer elsewhere.
        QCursor::setPos(filled.tree->viewport()->mapToGlobal(filled.rowRect(0).center()));
        Q_EMIT filled.tree->itemClicked(row, 0);
        QCOMPARE(row->checkState(0), Qt::Unchecked);
        QCursor::setPos(filled.tree->viewport()->mapToGlobal(rect.center()));
        Q_EMIT filled.tree->itemClicked(row, 0);
        QCOMPARE(row->checkState(0), Qt::Checked);
        Q_EMIT filled.tree->itemClicked(row, 1);
        Q_EMIT filled.tree->itemClicked(nullptr, 0);
        QCOMPARE(row->checkState(0), Qt::Checked);
        // Families have no widget.
        const QRect familyRect = filled.tree->visualItemRect(filled.family);
        filled.click(familyRect.center());
        QCOMPARE(filled.family->data(0, Qt::CheckStateRole), QVariant());
        QCOMPARE(row->checkState(0), Qt::Checked);
    }

    void changesAreToldInDebugMessages()
    {
        Filled filled(1);
        takeDebugMessages();
        filled.family->child(0)->setCheckState(0, Qt::Checked);
        QCOMPARE(takeDebugMessages(), QStringList{"slot_itemChanged===== 0"});
        filled.family->setText(1, "x");
        const QStringList messages = takeDebugMessages();
        QVERIFY(!messages.isEmpty());
        QCOMPARE(messages.last(), QString("slot_itemChanged===== 1"));
        QVERIFY(pointer::showAndWait(filled.tree.get()));
        QCoreApplication::processEvents();
        takeDebugMessages();
        filled.click(filled.rowRect(0).center());
        QCOMPARE(takeDebugMessages(), QStringList{"slot_itemChanged===== 0"});
    }

    void theRightEndStaysInSight()
    {
        Filled filled(1);
        TreeViewEx &tree = *filled.tree;
        QVERIFY(pointer::showAndWait(&tree));
        QCoreApplication::processEvents();
        takeDebugMessages();
        tree.setColumnCount(2); // the last one is as wide as the tree, so one alone never scrolls
        filled.family->setText(0, QString(200, 'w'));
        QTRY_VERIFY(tree.horizontalScrollBar()->maximum() > 0);
        const int maximum = tree.horizontalScrollBar()->maximum();
        QTRY_COMPARE(tree.horizontalScrollBar()->value(), maximum);
        QVERIFY(takeDebugMessages().contains(QString::number(maximum)));
        tree.horizontalScrollBar()->setValue(0);
        QCOMPARE(tree.horizontalScrollBar()->value(), 0); // a person may scroll back
        tree.horizontalScrollBar()->setRange(0, maximum + 7);
        QCOMPARE(tree.horizontalScrollBar()->value(), maximum + 7);
        QCOMPARE(takeDebugMessages(), QStringList{QString::number(maximum + 7)});
    }

    void theTreeCanBeEmptiedAndRefilled_data()
    {
        QTest::addColumn<bool>("isShown");
        QTest::newRow("hidden") << false;
        QTest::newRow("shown") << true;
    }

    void theTreeCanBeEmptiedAndRefilled()
    {
        QFETCH(bool, isShown);
        Filled filled(3);
        TreeViewEx &tree = *filled.tree;
        if (isShown)
            QVERIFY(pointer::showAndWait(&tree));
        for (int round = 0; round < 3; ++round) {
            const QPointer<TreeItem> widget = filled.widget(2);
            tree.setCurrentItem(filled.family->child(1));
            tree.removeAllItem();
            QCOMPARE(tree.topLevelItemCount(), 0);
            tree.removeAllItem();
            deleteScheduled();
            QVERIFY(widget.isNull());
            QVERIFY(tree.viewport()->findChildren<TreeItem *>().isEmpty());
            for (int i = 0; i < 2; ++i) {
                filled.family = new QTreeWidgetItem(&tree);
                for (int j = 0; j < 3; ++j)
                    tree.addTreeItem(filled.family, "x", {1, 2}, nullptr, Qt::Unchecked);
                filled.family->setExpanded(true);
            }
            QCOMPARE(tree.topLevelItemCount(), 2);
            if (isShown)
                QTRY_VERIFY(filled.isPlaced(2));
        }
    }

    void rowsWithoutAWidgetAreTheHosts()
    {
        Filled filled(1);
        TreeViewEx &tree = *filled.tree;
        auto *plain = new QTreeWidgetItem(filled.family, {"plain"});
        plain->setCheckState(0, Qt::Unchecked);
        QVERIFY(pointer::showAndWait(&tree));
        QCoreApplication::processEvents();
        filled.click(tree.visualItemRect(plain).center());
        QCOMPARE(plain->checkState(0), Qt::Unchecked);
        delete filled.widget(0); // by the host: the row stays, without a widget
        filled.click(filled.rowRect(0).center());
        QCOMPARE(filled.family->child(0)->checkState(0), Qt::Unchecked);
        delete filled.family->child(0);
        QCOMPARE(filled.family->childCount(), 1);
        tree.removeAllItem();
    }

    void rowsAndTreeCanGoInTheirSignals_data()
    {
        QTest::addColumn<QString>("action");
        QTest::newRow("the row") << "row";
        QTest::newRow("the family") << "family";
        QTest::newRow("all") << "all";
        QTest::newRow("all, and new ones") << "refill";
    }

    // A host's slot runs after the tree's own: the row has been toggled. The tree itself has to be
    // deleted later, as Qt goes on using it.
    void rowsAndTreeCanGoInTheirSignals()
    {
        QFETCH(QString, action);
        for (const bool onChange : {false, true}) {
            Filled filled(3);
            TreeViewEx &tree = *filled.tree;
            QVERIFY(pointer::showAndWait(&tree));
            QCoreApplication::processEvents();
            int calls = 0;
            const auto act = [&](QTreeWidgetItem *item) {
                ++calls;
                if (action == "row")
                    delete item;
                else if (action == "family")
                    delete filled.family;
                else
                    tree.removeAllItem();
                if (action == "refill") {
                    filled.family = new QTreeWidgetItem(&tree);
                    filled.family->setExpanded(true);
                }
            };
            if (onChange) {
                connect(&tree, &QTreeWidget::itemChanged, this, [&](QTreeWidgetItem *item) {
                    if (calls == 0)
                        act(item);
                });
            } else {
                connect(&tree, &QTreeWidget::itemClicked, this, act);
            }
            filled.click(filled.rowRect(1).center());
            QCOMPARE(calls, 1);
            deleteScheduled();
            QCoreApplication::processEvents();
            tree.grab();
            QCOMPARE(tree.viewport()->findChildren<TreeItem *>().size(), action == "row" ? 2 : 0);
            QCOMPARE(tree.topLevelItemCount(), action == "row" || action == "refill" ? 1 : 0);
        }
    }

    void addingTheNthRowCostsWhatTheFirstDid_data()
    {
        QTest::addColumn<bool>("isShown");
        QTest::addColumn<bool>("isExpanded");
        QTest::newRow("hidden, collapsed") << false << false;
        QTest::newRow("hidden, expanded") << false << true;
        QTest::newRow("shown, collapsed") << true << false;
        QTest::newRow("shown, expanded") << true << true;
    }

    void addingTheNthRowCostsWhatTheFirstDid()
    {
        QFETCH(bool, isShown);
        QFETCH(bool, isExpanded);
        Filled filled(1);
        TreeViewEx &tree = *filled.tree;
        filled.family->setExpanded(isExpanded);
        CountingDelegate delegate;
        tree.setItemDelegate(&delegate);
        if (isShown)
            QVERIFY(pointer::showAndWait(&tree));
        QCoreApplication::processEvents();
        delegate.count = 0;
        constexpr int count = 2000;
        for (int i = 1; i < count; ++i)
            tree.addTreeItem(filled.family, "x", {1, 2}, nullptr, Qt::Checked);
        // No row was looked at for another one's sake.
        QVERIFY2(delegate.count < 10, qPrintable(QString::number(delegate.count)));
        takeDebugMessages();
        filled.family->setExpanded(true);
        if (!isShown)
            QVERIFY(pointer::showAndWait(&tree));
        tree.scrollToBottom();
        QTRY_VERIFY(filled.isPlaced(count - 1));
        tree.removeAllItem();
        deleteScheduled();
    }

    void nothingOfATreeOutlivesIt_data()
    {
        QTest::addColumn<bool>("hasParent");
        QTest::newRow("alone") << false;
        QTest::newRow("with its parent") << true;
    }

    void nothingOfATreeOutlivesIt()
    {
        QFETCH(bool, hasParent);
        auto window = std::make_unique<QWidget>();
        Filled filled(2);
        if (hasParent)
            filled.tree->setParent(window.get());
        QVERIFY(pointer::showAndWait(filled.tree.get()));
        const QPointer<TreeItem> widget = filled.widget(0);
        QPointer<QObject> object = new QObject;
        filled.tree->addTreeItem(filled.family, "x", {1, 2}, object, Qt::Checked);
        if (hasParent) {
            filled.tree.release(); // the window's
            window.reset();
        } else {
            filled.tree.reset();
        }
        QVERIFY(widget.isNull());
        QVERIFY(object); // the host's
        delete object;
    }
};

ORVANE_TEST_MAIN(TestTreeViewEx)
#include "tst_treeviewex.moc"
