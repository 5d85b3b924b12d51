#include "support/layoutcheck.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include "pages/recentprojects.h"
#include "pages/startpage.h"

#include <customlistwidgetitem.h>
#include <listwidgetex.h>
#include <pushbuttonex.h>

#include <QtWidgets>

using wall::RecentProjects;
using wall::StartPage;

namespace
{

/// A page on a list of its own, in a folder of its own.
struct Fixture {
    QTemporaryDir folder;
    RecentProjects recent{folder.filePath("recent.ini")};
    QScopedPointer<StartPage> page;

    explicit Fixture(const QStringList &existing = {}, const QStringList &missing = {})
    {
        for (const QString &name : missing)
            recent.add(path(name));
        for (const QString &name : existing) {
            makeFile(name);
            recent.add(path(name));
        }
        page.reset(new StartPage(&recent));
        page->resize(1100, 640);
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    void makeFile(const QString &name) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    ListWidgetEx *list() const { return page->findChild<ListWidgetEx *>(); }
    CustomListWidgetItem *row(int index) const
    {
        return qobject_cast<CustomListWidgetItem *>(list()->itemWidget(list()->item(index)));
    }
    QStringList shownPaths() const
    {
        QStringList paths;
        for (int index = 0; index < list()->count(); ++index)
            paths.append(row(index)->getProjectPath());
        return paths;
    }
    PushButtonEx *button(const QString &text) const
    {
        const QList<PushButtonEx *> buttons = page->findChildren<PushButtonEx *>();
        for (PushButtonEx *button : buttons) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
    /// The trash button, which is the one that is seen while the pointer is over the row.
    QToolButton *trash(int index) const
    {
        return row(index)->findChildren<QToolButton *>().value(0);
    }
    bool isWarned(int index) const
    {
        const QList<QToolButton *> buttons = row(index)->findChildren<QToolButton *>();
        for (const QToolButton *button : buttons) {
            if (!button->icon().isNull())
                return true;
        }
        return false;
    }
};

QMimeData *urls(const QList<QUrl> &list)
{
    auto *data = new QMimeData;
    data->setUrls(list);
    return data;
}

} // namespace

class tst_WallStart : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void recentProjectsStandNewestFirstEachOnce();
    void recentProjectsAreAtMostTwenty();
    void recentProjectsAreAbsolute();
    void recentProjectsAreKept();
    void damagedSettingsAreCleaned();
    void addTellsOfAChangeOnly();
    void removeTellsWhere();

    void rowsFollowTheList();
    void pressOnARowAsksToOpenIt();
    void returnAsksToOpenTheCurrentRow();
    void trashTakesTheRowOffTheList();
    void deleteTakesTheCurrentRowOffTheList();
    void missingFilesAreWarnedOf();
    void warningsFollowTheFiles();
    void namesAreNoMarks();
    void hintStandsForAnEmptyList();
    void commandsAsk_data();
    void commandsAsk();
    void droppedFileIsOpened();
    void othersAreNotTaken_data();
    void othersAreNotTaken();
    void dropShowsOnThePage();
    void listMayChangeWhileItOpens();
    void pageMayGoWhileItOpens();
    void nothingIsCut_data();
    void nothingIsCut();
};

void tst_WallStart::recentProjectsStandNewestFirstEachOnce()
{
    QTemporaryDir folder;
    RecentProjects recent(folder.filePath("recent.ini"));
    QCOMPARE(recent.paths(), QStringList());
    recent.add("/walls/a.json");
    recent.add("/walls/b.json");
    recent.add("/walls/c.json");
    recent.add("/walls/a.json");
    QCOMPARE(recent.paths(), QStringList({"/walls/a.json", "/walls/c.json", "/walls/b.json"}));
    recent.add(QString());
    QCOMPARE(recent.paths().size(), 3);
}

void tst_WallStart::recentProjectsAreAtMostTwenty()
{
    QTemporaryDir folder;
    RecentProjects recent(folder.filePath("recent.ini"));
    for (int i = 1; i <= 25; ++i)
        recent.add(QString("/walls/%1.json").arg(i));
    QCOMPARE(recent.paths().size(), 20);
    QCOMPARE(recent.paths().first(), QString("/walls/25.json"));
    QCOMPARE(recent.paths().last(), QString("/walls/6.json"));
}

void tst_WallStart::recentProjectsAreAbsolute()
{
    QTemporaryDir folder;
    RecentProjects recent(folder.filePath("recent.ini"));
    recent.add("walls/../a.json");
    QCOMPARE(recent.paths(), QStringList(QDir::current().absoluteFilePath("a.json")));
    recent.add("a.json");
    QCOMPARE(recent.paths().size(), 1);
    recent.remove("./a.json");
    QCOMPARE(recent.paths(), QStringList());
}

void tst_WallStart::recentProjectsAreKept()
{
    QTemporaryDir folder;
    const QString ini = folder.filePath("recent.ini");
    {
        RecentProjects recent(ini);
        recent.add("/walls/a.json");
        recent.add("/walls/b, c.json");
        recent.add("/walls/d.json");
        recent.remove("/walls/a.json");
    }
    RecentProjects recent(ini);
    QCOMPARE(recent.paths(), QStringList({"/walls/d.json", "/walls/b, c.json"}));
}

void tst_WallStart::damagedSettingsAreCleaned()
{
    QTemporaryDir folder;
    const QString ini = folder.filePath("recent.ini");
    QStringList saved{"/walls/a.json", "", "/walls/a.json"};
    for (int i = 0; i < 30; ++i)
        saved.append(QString("/walls/%1.json").arg(i));
    QSettings(ini, QSettings::IniFormat).setValue("recentProjects", saved);
    RecentProjects recent(ini);
    QCOMPARE(recent.paths().size(), 20);
    QCOMPARE(recent.paths().at(0), QString("/walls/a.json"));
    QCOMPARE(recent.paths().at(1), QString("/walls/0.json"));
}

void tst_WallStart::addTellsOfAChangeOnly()
{
    QTemporaryDir folder;
    RecentProjects recent(folder.filePath("recent.ini"));
    QSignalSpy changed(&recent, &RecentProjects::changed);
    recent.add("/walls/a.json");
    QCOMPARE(changed.count(), 1);
    recent.add("/walls/a.json");
    QCOMPARE(changed.count(), 1);
}

void tst_WallStart::removeTellsWhere()
{
    QTemporaryDir folder;
    RecentProjects recent(folder.filePath("recent.ini"));
    for (const char *path : {"/c", "/b", "/a"})
        recent.add(path);
    QSignalSpy removed(&recent, &RecentProjects::removed);
    recent.remove("/b");
    recent.remove("/unknown");
    recent.remove(QString());
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed.at(0).at(0).toInt(), 1);
    QCOMPARE(recent.paths(), QStringList({"/a", "/c"}));
}

void tst_WallStart::rowsFollowTheList()
{
    Fixture f({"a.json", "b.json"});
    QCOMPARE(f.shownPaths(), QStringList({f.path("b.json"), f.path("a.json")}));
    f.recent.add(f.path("c.json"));
    QCOMPARE(f.shownPaths(), f.recent.paths());
    f.recent.remove(f.path("b.json"));
    QCOMPARE(f.shownPaths(), QStringList({f.path("c.json"), f.path("a.json")}));
}

void tst_WallStart::pressOnARowAsksToOpenIt()
{
    Fixture f({"a.json", "b.json"});
    QSignalSpy opened(f.page.data(), &StartPage::openRequested);
    QVERIFY(pointer::showAndWait(f.page.data()));
    windowmouse::click(f.row(1));
    QCOMPARE(opened.count(), 1);
    QCOMPARE(opened.at(0).at(0).toString(), f.path("a.json"));
}

void tst_WallStart::returnAsksToOpenTheCurrentRow()
{
    Fixture f({"a.json", "b.json"});
    QSignalSpy opened(f.page.data(), &StartPage::openRequested);
    QVERIFY(pointer::showAndWait(f.page.data()));
    f.list()->setFocus();
    QTest::keyClick(f.list(), Qt::Key_Return);
    QTest::keyClick(f.list(), Qt::Key_Down);
    QTest::keyClick(f.list(), Qt::Key_Enter);
    QCOMPARE(opened.count(), 2);
    QCOMPARE(opened.at(0).at(0).toString(), f.path("b.json"));
    QCOMPARE(opened.at(1).at(0).toString(), f.path("a.json"));
}

void tst_WallStart::trashTakesTheRowOffTheList()
{
    Fixture f({"a.json", "b.json", "c.json"});
    QSignalSpy opened(f.page.data(), &StartPage::openRequested);
    QVERIFY(pointer::showAndWait(f.page.data()));
    pointer::moveTo(f.page.data(), QPoint(5, 5));
    pointer::moveTo(f.row(1));
    QTRY_VERIFY(f.trash(1)->isVisible() && f.trash(1)->x() > 100);
    windowmouse::click(f.trash(1));
    QCOMPARE(f.recent.paths(), QStringList({f.path("c.json"), f.path("a.json")}));
    QCOMPARE(f.shownPaths(), f.recent.paths());
    QCOMPARE(opened.count(), 0);
    QVERIFY(QFile::exists(f.path("b.json")));
}

void tst_WallStart::deleteTakesTheCurrentRowOffTheList()
{
    Fixture f({"a.json", "b.json"});
    QVERIFY(pointer::showAndWait(f.page.data()));
    f.list()->setFocus();
    QTest::keyClick(f.list(), Qt::Key_Delete);
    QCOMPARE(f.shownPaths(), QStringList(f.path("a.json")));
    QTest::keyClick(f.list(), Qt::Key_Delete);
    QTest::keyClick(f.list(), Qt::Key_Delete);
    QCOMPARE(f.shownPaths(), QStringList());
}

void tst_WallStart::missingFilesAreWarnedOf()
{
    Fixture f({"there.json"}, {"gone.json"});
    QVERIFY(!f.isWarned(0));
    QVERIFY(f.isWarned(1));
    QCOMPARE(f.list()->item(1)->data(Qt::AccessibleTextRole).toString(),
             f.path("gone.json") + ", missing");

    // It can be asked for all the same: the window tells what is wrong.
    QSignalSpy opened(f.page.data(), &StartPage::openRequested);
    QVERIFY(pointer::showAndWait(f.page.data()));
    windowmouse::click(f.row(1));
    QCOMPARE(opened.count(), 1);
}

void tst_WallStart::warningsFollowTheFiles()
{
    Fixture f({"a.json"});
    QVERIFY(pointer::showAndWait(f.page.data()));
    QVERIFY(QFile::remove(f.path("a.json")));
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(f.page.data(), &activate);
    QVERIFY(f.isWarned(0));
    f.page->hide();
    f.makeFile("a.json");
    f.page->show();
    QVERIFY(!f.isWarned(0));
}

void tst_WallStart::namesAreNoMarks()
{
    Fixture f;
    f.recent.add("/walls/<b>bold<b>.json");
    const auto *label = f.row(0)->findChild<QLabel *>();
    QTextDocument document;
    document.setHtml(label->text());
    QVERIFY(Qt::mightBeRichText(label->text()));
    QCOMPARE(document.toPlainText().section(' ', 0, 0), QString("<b>bold<b>.json"));
}

void tst_WallStart::hintStandsForAnEmptyList()
{
    Fixture f;
    QVERIFY(pointer::showAndWait(f.page.data()));
    QVERIFY(!f.list()->isVisible());
    f.recent.add(f.path("a.json"));
    QVERIFY(f.list()->isVisible());
    f.recent.remove(f.path("a.json"));
    QVERIFY(!f.list()->isVisible());
}

void tst_WallStart::commandsAsk_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("asked");
    QTest::newRow("new") << "New project" << 0;
    QTest::newRow("open") << "Open..." << 1;
    QTest::newRow("demo") << "Demo project" << 2;
}

void tst_WallStart::commandsAsk()
{
    QFETCH(QString, text);
    QFETCH(int, asked);
    Fixture f;
    QSignalSpy created(f.page.data(), &StartPage::newRequested);
    QSignalSpy dialog(f.page.data(), &StartPage::openDialogRequested);
    QSignalSpy demo(f.page.data(), &StartPage::demoRequested);
    QVERIFY(pointer::showAndWait(f.page.data()));
    QVERIFY(f.button(text));
    windowmouse::click(f.button(text));
    QList<int> counts{created.count(), dialog.count(), demo.count()};
    QList<int> expected{0, 0, 0};
    expected[asked] = 1;
    QCOMPARE(counts, expected);
    f.button(text)->setFocus();
    QTest::keyClick(f.button(text), Qt::Key_Space);
    QCOMPARE(created.count() + dialog.count() + demo.count(), 2);
}

void tst_WallStart::droppedFileIsOpened()
{
    Fixture f({"a.json"});
    QSignalSpy opened(f.page.data(), &StartPage::openRequested);
    const QScopedPointer<QMimeData> data(
        urls({QUrl("https://walls.example/x.json"), QUrl::fromLocalFile(f.path("a.json"))}));
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, data.data(), Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(f.page.data(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, data.data(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(f.page.data(), &drop);
    QCOMPARE(opened.count(), 1);
    QCOMPARE(opened.at(0).at(0).toString(), f.path("a.json"));

    // Nothing on the page takes the drag away from it.
    const QList<QWidget *> children = f.page->findChildren<QWidget *>();
    for (const QWidget *child : children)
        QVERIFY(!child->acceptDrops());
}

void tst_WallStart::othersAreNotTaken_data()
{
    QTest::addColumn<QList<QUrl>>("list");
    QTest::newRow("no url") << QList<QUrl>();
    QTest::newRow("far away") << QList<QUrl>{QUrl("https://walls.example/x.json")};
    QTest::newRow("folder") << QList<QUrl>{QUrl::fromLocalFile(QDir::tempPath())};
}

void tst_WallStart::othersAreNotTaken()
{
    QFETCH(QList<QUrl>, list);
    Fixture f;
    QSignalSpy opened(f.page.data(), &StartPage::openRequested);
    const QScopedPointer<QMimeData> data(urls(list));
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, data.data(), Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(f.page.data(), &enter);
    QVERIFY(!enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, data.data(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(f.page.data(), &drop);
    QCOMPARE(opened.count(), 0);
}

void tst_WallStart::dropShowsOnThePage()
{
    Fixture f({"a.json"});
    const QColor accent(66, 145, 240);
    QVERIFY(pointer::colorAt(f.page.data(), QPoint(0, 0)) != accent);
    const QScopedPointer<QMimeData> data(urls({QUrl::fromLocalFile(f.path("a.json"))}));
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, data.data(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(f.page.data(), &enter);
    QCOMPARE(pointer::colorAt(f.page.data(), QPoint(0, 0)), accent);
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(f.page.data(), &leave);
    QVERIFY(pointer::colorAt(f.page.data(), QPoint(0, 0)) != accent);
}

void tst_WallStart::listMayChangeWhileItOpens()
{
    Fixture f({"a.json", "b.json", "c.json"});
    connect(f.page.data(), &StartPage::openRequested, &f.recent, &RecentProjects::add);
    QVERIFY(pointer::showAndWait(f.page.data()));
    windowmouse::click(f.row(2));
    QCOMPARE(f.shownPaths(), QStringList({f.path("a.json"), f.path("c.json"), f.path("b.json")}));
    f.list()->setFocus();
    f.list()->setCurrentRow(1);
    QTest::keyClick(f.list(), Qt::Key_Return);
    QCOMPARE(f.shownPaths(), QStringList({f.path("c.json"), f.path("a.json"), f.path("b.json")}));
}

void tst_WallStart::pageMayGoWhileItOpens()
{
    Fixture f({"a.json"});
    QVERIFY(pointer::showAndWait(f.page.data()));
    int opened = 0;
    connect(f.page.data(), &StartPage::openRequested, &f.recent, [&] {
        ++opened;
        f.page.reset();
    });
    windowmouse::press(f.row(0));
    QCOMPARE(opened, 1);
    QVERIFY(!f.page);
}

void tst_WallStart::nothingIsCut_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("smallest") << QSize(1100, 640);
    QTest::newRow("full HD") << QSize(1920, 1080);
    QTest::newRow("very large") << QSize(3840, 2160);
}

void tst_WallStart::nothingIsCut()
{
    QFETCH(QSize, size);
    Fixture f({"a.json"});
    f.page->resize(size);
    QVERIFY(pointer::showAndWait(f.page.data()));
    QCOMPARE(cutTexts(f.page.data()).join("; "), QString());
    QVERIFY(f.page->minimumSizeHint().width() <= 1100);
    QVERIFY(f.page->minimumSizeHint().height() <= 640);
}

ORVANE_TEST_MAIN(tst_WallStart)
#include "tst_wallstart.moc"
