#include "gallerywindow.h"

#include "eventpane.h"
#include "focusring.h"
#include "navigation.h"
#include "page.h"
#include "pagelist.h"
#include "sheetpane.h"
#include "theme.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QScreen>
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

QIcon windowPicture()
{
    QIcon icon;
    for (int size : {16, 32, 64}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const qreal tile = size * 7 / 16.0;
        const qreal second = size - tile;
        for (const QPointF &corner :
             {QPointF(0, 0), QPointF(second, 0), QPointF(0, second), QPointF(second, second)}) {
            painter.setBrush(corner == QPointF(second, 0) ? theme::accent : theme::text);
            painter.drawRoundedRect(QRectF(corner, QSizeF(tile, tile)), size / 16.0, size / 16.0);
        }
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : QWidget(parent)
    , m_navigation(new Navigation(this))
    , m_pages(new QStackedWidget(this))
    , m_sheetPane(new SheetPane(this))
    , m_eventPane(new EventPane(this))
{
    setWindowTitle("OrvaneControls Gallery");
    setWindowIcon(windowPicture());

    auto *panes = new LineSplitter(Qt::Horizontal, this);
    panes->addWidget(m_sheetPane);
    panes->addWidget(m_eventPane);
    panes->setStretchFactor(0, 3);
    panes->setStretchFactor(1, 2);

    auto *right = new LineSplitter(Qt::Vertical, this);
    right->addWidget(m_pages);
    right->addWidget(panes);
    right->setStretchFactor(0, 1);
    right->setStretchFactor(1, 0);
    right->setSizes({500, 208});

    m_navigation->setFixedWidth(58 * theme::unit);
    m_sheetPane->setMinimumSize(60 * theme::unit, 30 * theme::unit);
    m_eventPane->setMinimumSize(60 * theme::unit, 30 * theme::unit);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_navigation);
    layout->addWidget(right, 1);
    resize(QSize(1280, 800).boundedTo(QGuiApplication::primaryScreen()->availableSize()));

    new FocusRing(this);

    connect(m_navigation, &Navigation::pageChosen, this, [this](const QString &name) {
        m_pages->setCurrentWidget(page(name));
        updateSheet();
    });
    const auto shortcut = [this](const QKeySequence &keys, auto call) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, call);
    };
    shortcut(QKeySequence::Find, [this] { m_navigation->focusFilter(); });
    shortcut(Qt::CTRL + Qt::Key_PageUp, [this] { m_navigation->step(-1); });
    shortcut(Qt::CTRL + Qt::Key_PageDown, [this] { m_navigation->step(1); });
    shortcut(Qt::Key_F6, [this] { goToNextRegion(1); });
    shortcut(Qt::SHIFT + Qt::Key_F6, [this] { goToNextRegion(-1); });
    shortcut(QKeySequence::Quit, [] { QApplication::closeAllWindows(); });
}

void GalleryWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Styles draw the focus only after the first Tab key; here the samples show it from the start.
    setAttribute(Qt::WA_KeyboardFocusChange);
}

Page *GalleryWindow::showPage(const QString &name)
{
    m_navigation->setCurrentPage(name);
    return currentPage();
}

Page *GalleryWindow::currentPage() const
{
    return qobject_cast<Page *>(m_pages->currentWidget());
}

Page *GalleryWindow::page(const QString &name)
{
    if (Page *built = m_built.value(name))
        return built;
    auto *page = new Page(*findPage(name), m_pages);
    m_built.insert(name, page);
    m_pages->addWidget(page);
    connect(page, &Page::selectionChanged, this, &GalleryWindow::updateSheet);
    connect(page, &Page::sheetChanged, this, &GalleryWindow::updateSheet);
    connect(page, &Page::eventReported, this,
            [this, page](const QString &text) { m_eventPane->add(page->name(), text); });
    return page;
}

void GalleryWindow::updateSheet()
{
    const Page *page = currentPage();
    const SampleFrame *frame = page ? page->selected() : nullptr;
    if (frame)
        m_sheetPane->showSheet(frame->sample().styled, page->name() + ", " + frame->title());
    else
        m_sheetPane->showSheet(nullptr, QString());
}

void GalleryWindow::goToNextRegion(int direction)
{
    QList<QWidget *> regions = {m_navigation};
    if (const Page *page = currentPage())
        regions += page->regions();
    regions += {m_sheetPane, m_eventPane};

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
