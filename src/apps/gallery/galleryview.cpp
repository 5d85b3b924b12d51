#include "galleryview.h"

#include "eventpane.h"
#include "focusring.h"
#include "navigation.h"
#include "page.h"
#include "pagelist.h"
#include "recentpane.h"
#include "sheetpane.h"
#include "theme.h"

#include <custommegbox.h>
#include <nqtabwidget.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QShortcut>
#include <QSplitter>
#include <QSplitterHandle>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace
{

/// A splitter whose handle is a line.
class LineSplitter : public QSplitter
{
public:
    LineSplitter(Qt::Orientation orientation, QWidget *parent)
        : QSplitter(orientation, parent)
    {
        setChildrenCollapsible(false);
        setHandleWidth(1); // Qt makes the part that takes the pointer wider than that
    }

protected:
    QSplitterHandle *createHandle() override
    {
        class Handle : public QSplitterHandle
        {
        public:
            using QSplitterHandle::QSplitterHandle;

        protected:
            void paintEvent(QPaintEvent *) override
            {
                QPainter painter(this);
                painter.fillRect(contentsRect(), theme::line);
            }
        };
        return new Handle(orientation(), this);
    }
};

} // namespace

GalleryView::GalleryView(QWidget *parent)
    : QWidget(parent)
    , m_navigation(new Navigation(this))
    , m_pages(new QStackedWidget(this))
    , m_sheetPane(new SheetPane)
    , m_eventPane(new EventPane)
    , m_recentPane(new RecentPane)
    , m_panes(new NQTabWidget(this))
{
    m_panes->setStackedWidgetColor(theme::ground);
    m_panes->addTab(m_sheetPane, "Style sheet");
    m_panes->addTab(m_eventPane, "Events");
    m_panes->addTab(m_recentPane, "Recent pages");
    m_panes->setCurrentWidget(m_sheetPane);

    auto *right = new LineSplitter(Qt::Vertical, this);
    right->addWidget(m_pages);
    right->addWidget(m_panes);
    right->setStretchFactor(0, 1);
    right->setStretchFactor(1, 0);
    right->setSizes({500, 208});

    m_navigation->setFixedWidth(58 * theme::unit);
    m_panes->setMinimumSize(60 * theme::unit, 38 * theme::unit);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_navigation);
    layout->addWidget(right, 1);

    new FocusRing(this);

    connect(m_navigation, &Navigation::pageChosen, this, [this](const QString &name) {
        m_pages->setCurrentWidget(page(name));
        m_recentPane->add(name);
        updateSheet();
    });
    connect(m_navigation, &Navigation::aboutAsked, this, &GalleryView::showAbout);
    connect(m_recentPane, &RecentPane::pageChosen, this, &GalleryView::showPage);
    connect(m_eventPane, &EventPane::countChanged, this, [this](int count) {
        const QString heading = count > 0 ? QStringLiteral("Events (%1)").arg(count) : "Events";
        m_panes->setTabText(m_panes->indexOf(m_eventPane), heading);
    });
    const auto shortcut = [this](const QKeySequence &keys, auto call) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, call);
    };
    shortcut(QKeySequence::Find, [this] { m_navigation->focusFilter(); });
    shortcut(Qt::CTRL + Qt::Key_PageUp, [this] { m_navigation->step(-1); });
    shortcut(Qt::CTRL + Qt::Key_PageDown, [this] { m_navigation->step(1); });
    shortcut(Qt::Key_F6, [this] { goToNextRegion(1); });
    shortcut(Qt::SHIFT + Qt::Key_F6, [this] { goToNextRegion(-1); });
    shortcut(QKeySequence::HelpContents, [this] { showAbout(); });
    shortcut(QKeySequence::Quit, [] { QApplication::closeAllWindows(); });
}

void GalleryView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Styles draw the focus only after the first Tab key; here the samples show it from the start.
    setAttribute(Qt::WA_KeyboardFocusChange);
}

Page *GalleryView::showPage(const QString &name)
{
    m_navigation->setCurrentPage(name);
    return currentPage();
}

Page *GalleryView::currentPage() const
{
    return qobject_cast<Page *>(m_pages->currentWidget());
}

Page *GalleryView::page(const QString &name)
{
    if (Page *built = m_built.value(name))
        return built;
    auto *page = new Page(*findPage(name), m_pages);
    m_built.insert(name, page);
    m_pages->addWidget(page);
    connect(page, &Page::selectionChanged, this, &GalleryView::updateSheet);
    connect(page, &Page::sheetChanged, this, &GalleryView::updateSheet);
    connect(page, &Page::eventReported, this,
            [this, page](const QString &text) { m_eventPane->add(page->name(), text); });
    return page;
}

void GalleryView::updateSheet()
{
    const Page *page = currentPage();
    const SampleFrame *frame = page ? page->selected() : nullptr;
    if (frame)
        m_sheetPane->showSheet(frame->sample().styled, page->name() + ", " + frame->title());
    else
        m_sheetPane->showSheet(nullptr, QString());
}

void GalleryView::goToNextRegion(int direction)
{
    QList<QWidget *> regions = {m_navigation};
    if (const Page *page = currentPage())
        regions += page->regions();
    regions.append(m_panes);

    int current = 0;
    for (int i = 0; i < regions.size(); ++i) {
        if (regions.at(i)->isAncestorOf(QApplication::focusWidget()))
            current = i;
    }
    const int next = (current + direction + regions.size()) % regions.size();
    // The first part of the region that takes the focus, in the order of the Tab key.
    QWidget *region = regions.at(next);
    for (QWidget *part = region->nextInFocusChain(); part != region;
         part = part->nextInFocusChain()) {
        if (region->isAncestorOf(part) && part->isVisible() && part->isEnabled()
            && (part->focusPolicy() & Qt::TabFocus)) {
            part->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void GalleryView::showAbout()
{
    CustomMegBox::informationMessageBox(
        window(), "About",
        QStringLiteral("OrvaneControls Gallery %1\nEvery widget of the library in its looks and "
                       "states.\nThis window is made of them too.")
            .arg(QApplication::applicationVersion()),
        "Close");
}
