#include "page.h"

#include "stategrid.h"
#include "theme.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace
{

constexpr int panelWidth = 84 * theme::unit; // more if a name is long
constexpr int controlWidth = 28 * theme::unit;

/// A part of a page: a heading by weight over its content, in a border.
class Card : public QWidget
{
public:
    Card(const QString &title, QWidget *content, QWidget *parent)
        : QWidget(parent)
    {
        auto *heading = new QLabel(title, this);
        heading->setFont(theme::headingFont());
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(theme::margin, theme::margin - theme::unit, theme::margin,
                                   theme::margin);
        layout->setSpacing(theme::gap + theme::unit);
        layout->addWidget(heading);
        layout->addWidget(content);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        theme::drawFrame(painter, rect(), theme::line);
    }
};

/// The ground on which the tried widget stands.
class Stage : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        theme::drawFrame(painter, rect(), theme::line);
    }
};

QScrollArea *makeScrollArea(QWidget *content, QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(content);
    theme::styleScrollBars(area);
    return area;
}

} // namespace

Page::Page(const PageInfo &info, QWidget *parent)
    : QWidget(parent)
    , m_info(info)
    , m_content(new QWidget)
    , m_contentLayout(new QVBoxLayout(m_content))
    , m_scrollArea(makeScrollArea(m_content, this))
    , m_panel(new QWidget(this))
{
    auto *title = new QLabel(info.name, m_content);
    title->setFont(theme::headingFont(3));
    m_contentLayout->setContentsMargins(theme::margin, 5 * theme::unit, theme::margin,
                                        theme::margin);
    m_contentLayout->setSpacing(theme::margin);
    m_contentLayout->addWidget(title);
    m_contentLayout->addSpacing(-theme::gap); // the purpose belongs to the title

    auto *panelContent = new QWidget;
    auto *panelLayout = new QVBoxLayout(panelContent);
    panelLayout->setContentsMargins(theme::margin, 5 * theme::unit, theme::margin, theme::margin);
    panelLayout->setSpacing(theme::margin);
    auto *panelTitle = new QLabel("Try it", panelContent);
    panelTitle->setFont(theme::headingFont());
    auto *stage = new Stage(panelContent);
    m_stageLayout = new QVBoxLayout(stage);
    m_stageLayout->setContentsMargins(theme::gap, theme::margin, theme::gap, theme::margin);
    m_stageLayout->setSpacing(theme::unit);
    m_controlsLayout = new QGridLayout;
    m_controlsLayout->setHorizontalSpacing(theme::gap);
    m_controlsLayout->setVerticalSpacing(theme::gap);
    m_controlsLayout->setColumnStretch(0, 1);
    panelLayout->addWidget(panelTitle);
    panelLayout->addWidget(stage);
    panelLayout->addLayout(m_controlsLayout);
    panelLayout->addStretch(1);
    stage->hide(); // until there is something on it
    m_panelScrollArea = makeScrollArea(panelContent, m_panel);

    auto *panelFrame = new QHBoxLayout(m_panel);
    panelFrame->setContentsMargins(0, 0, 0, 0);
    panelFrame->setSpacing(0);
    auto *separator = new QFrame(m_panel);
    separator->setFixedWidth(1);
    separator->setAutoFillBackground(true);
    QPalette separatorPalette = separator->palette();
    separatorPalette.setColor(QPalette::Window, theme::line);
    separator->setPalette(separatorPalette);
    panelFrame->addWidget(separator);
    panelFrame->addWidget(m_panelScrollArea);
    m_panel->hide(); // until there is something to try

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_scrollArea, 1);
    layout->addWidget(m_panel);

    info.build(*this);

    m_contentLayout->addStretch(1);
    const int neededWidth = m_panelScrollArea->widget()->minimumSizeHint().width()
        + m_panelScrollArea->verticalScrollBar()->sizeHint().width() + separator->width();
    m_panel->setFixedWidth(qMax(panelWidth, neededWidth));
    for (SampleFrame *frame : qAsConst(m_frames)) {
        if (frame->isLive()) {
            select(frame);
            break;
        }
    }
    if (!m_selected && !m_frames.isEmpty())
        select(m_frames.first());
}

int Page::fullHeight() const
{
    m_content->ensurePolished();
    const int width = m_scrollArea->viewport()->width();
    const int content = m_contentLayout->hasHeightForWidth()
        ? m_contentLayout->totalHeightForWidth(width)
        : m_contentLayout->totalSizeHint().height();
    const int panel =
        m_panel->isHidden() ? 0 : m_panelScrollArea->widget()->layout()->totalSizeHint().height();
    return qMax(content, panel);
}

QList<QWidget *> Page::regions() const
{
    QList<QWidget *> found;
    for (StateGrid *grid : m_grids)
        found.append(grid);
    if (!m_panel->isHidden())
        found.append(m_panel);
    return found;
}

void Page::setPurpose(const QString &sentence)
{
    auto *label = new QLabel(sentence, m_content);
    label->setWordWrap(true);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, theme::quietText);
    label->setPalette(palette);
    m_contentLayout->addWidget(label);
}

void Page::setStates(const QList<StateColumn> &columns, const QString &title)
{
    auto *grid = new StateGrid(columns);
    m_grids.append(grid);
    card(title, grid);
}

void Page::look(const QString &title, const std::function<Sample(QWidget *)> &make)
{
    const QList<SampleFrame *> frames = m_grids.last()->addLook(title, make);
    for (SampleFrame *frame : frames)
        addFrame(frame);
}

void Page::card(const QString &title, QWidget *content)
{
    m_contentLayout->addWidget(new Card(title, content, m_content));
}

void Page::addToStage(const Sample &sample, const QString &title)
{
    auto *frame = new SampleFrame(sample, title.isEmpty() ? "Try it" : "Try it: " + title,
                                  m_stageLayout->parentWidget());
    m_stageLayout->addWidget(frame, 0, Qt::AlignCenter);
    m_stageLayout->parentWidget()->show();
    m_panel->show();
    addFrame(frame);
}

void Page::addCardToTry(const QString &title, const Sample &sample, QWidget *beside)
{
    auto *content = new QWidget;
    auto *frame = new SampleFrame(sample, title, content);
    auto *layout = new QHBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::margin);
    layout->addWidget(frame, 0, Qt::AlignTop | Qt::AlignLeft);
    if (beside)
        layout->addWidget(beside, 1);
    else
        layout->addStretch(1);
    card(title, content);
    addFrame(frame);
}

void Page::addRow(const QString &name, QWidget *control)
{
    m_panel->show();
    const int row = m_controlsLayout->rowCount();
    auto *label = new QLabel(name, m_controlsLayout->parentWidget());
    label->setBuddy(control);
    control->setAccessibleName(name);
    if (control->maximumWidth() > controlWidth)
        control->setFixedWidth(controlWidth);
    m_controlsLayout->addWidget(label, row, 0);
    m_controlsLayout->addWidget(control, row, 1, Qt::AlignLeft | Qt::AlignVCenter);
    m_controlsLayout->setRowMinimumHeight(row, theme::controlHeight);
}

void Page::addAction(const QString &name, const std::function<void()> &call)
{
    m_panel->show();
    PushButtonEx *button = makeButton(name, NoActivatedBtn, m_controlsLayout->parentWidget());
    button->setFixedWidth(qMax(button->width(), controlWidth));
    button->setText(name); // elided to the width it has now
    m_controlsLayout->addWidget(button, m_controlsLayout->rowCount(), 0, 1, 2, Qt::AlignRight);
    connect(button, &QPushButton::clicked, this, call);
}

void Page::addFrame(SampleFrame *frame)
{
    m_frames.append(frame);
    connect(frame, &SampleFrame::chosen, this, &Page::select);
    if (frame->sample().styled)
        frame->sample().styled->installEventFilter(this);
}

void Page::select(SampleFrame *frame)
{
    if (m_selected == frame)
        return;
    if (m_selected)
        m_selected->setSelected(false);
    m_selected = frame;
    m_selected->setSelected(true);
    Q_EMIT selectionChanged();
}

void Page::applied(Refresh refresh)
{
    for (const Refresher &refresher : qAsConst(m_refreshers)) {
        if (refresh == Refresh::Everything || !refresher.isUnread)
            refresher.refresh();
    }
    for (SampleFrame *frame : qAsConst(m_frames))
        frame->force();
    Q_EMIT sheetChanged();
}

void Page::report(const QString &name, const QStringList &arguments)
{
    Q_EMIT eventReported(name + '(' + arguments.join(", ") + ')');
}

bool Page::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::StyleChange && m_selected
        && watched == m_selected->sample().styled)
        Q_EMIT sheetChanged();
    return QWidget::eventFilter(watched, event);
}
