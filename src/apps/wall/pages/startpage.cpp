#include "startpage.h"

#include "look.h"
#include "recentprojects.h"

#include <customlistwidgetitem.h>
#include <listwidgetex.h>

#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QStackedWidget>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

namespace wall
{

namespace
{

constexpr int commandsWidth = 50 * look::unit;
constexpr int contentWidth = 280 * look::unit;

/// What a row shows: the file's name and its folder.
QString rowText(const QString &path)
{
    const QFileInfo info(path);
    const QString text =
        info.fileName() + QStringLiteral("   ") + QDir::toNativeSeparators(info.absolutePath());
    // The row's label reads marks in a name, such as "<b>", as a rich text.
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

/// The first file of this computer that is dragged, empty if there is none.
QString draggedFile(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile() && !QFileInfo(url.toLocalFile()).isDir())
            return url.toLocalFile();
    }
    return {};
}

} // namespace

StartPage::StartPage(RecentProjects *recent, QWidget *parent)
    : QWidget(parent)
    , m_recent(recent)
{
    look::applyTo(this);
    setAcceptDrops(true);

    auto *content = new QWidget(this);
    content->setMaximumWidth(contentWidth);
    auto *columns = new QHBoxLayout(content);
    columns->setContentsMargins(2 * look::margin, 2 * look::margin, 2 * look::margin,
                                2 * look::margin);
    columns->setSpacing(3 * look::margin);
    columns->addWidget(makeCommands());
    columns->addWidget(makeRecent(), 1);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch(1);
    layout->addWidget(content, 1000); // up to its greatest width
    layout->addStretch(1);

    connect(m_recent, &RecentProjects::changed, this, &StartPage::fillList);
    connect(m_recent, &RecentProjects::removed, this, &StartPage::removeRow);
    fillList();
}

QWidget *StartPage::makeCommands()
{
    auto *commands = new QWidget(this);
    commands->setFixedWidth(commandsWidth);
    auto *layout = new QVBoxLayout(commands);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(look::gap);
    layout->addWidget(look::makeHeading(tr("Begin"), commands));
    layout->addSpacing(look::unit);

    const auto addCommand = [&](const QString &text, BtnType type, void (StartPage::*signal)()) {
        PushButtonEx *button = look::makeButton(text, type, commands);
        button->setFixedWidth(commandsWidth);
        connect(button, &QPushButton::clicked, this, signal);
        layout->addWidget(button);
    };
    addCommand(tr("New project"), ActivatedBtn, &StartPage::newRequested);
    addCommand(tr("Open..."), NoActivatedBtn, &StartPage::openDialogRequested);
    addCommand(tr("Demo project"), NoActivatedBtn, &StartPage::demoRequested);

    layout->addSpacing(look::gap);
    layout->addWidget(
        look::makeWrappedLabel(tr("Or drop a project file anywhere on this page."), commands));
    layout->addStretch(1);
    return commands;
}

QWidget *StartPage::makeRecent()
{
    auto *recent = new QWidget(this);
    m_list = new ListWidgetEx(recent);
    m_list->setBgNormalColor(look::well);
    m_list->setBgHoverColor(look::raised);
    m_list->setBgPressedColor(look::raised);
    m_list->setFontColor(look::text);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setAccessibleName(tr("Recent projects"));
    m_list->installEventFilter(this);
    look::styleScrollBars(m_list);
    connect(m_list, &ListWidgetEx::signal_notifyProjectPath, this,
            [this](CustomListWidgetItem *, const QString &path) { Q_EMIT openRequested(path); });
    connect(m_list, &ListWidgetEx::signal_notifydeleteItem, this,
            [this](ListWidgetEx *, CustomListWidgetItem *item) {
                m_recent->remove(item->getProjectPath());
            });

    m_hint =
        look::makeWrappedLabel(tr("No recent projects. What you open or save comes here."), recent);
    m_hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_stack = new QStackedWidget(recent);
    m_stack->addWidget(m_list);
    m_stack->addWidget(m_hint);

    auto *layout = new QVBoxLayout(recent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(look::gap);
    layout->addWidget(look::makeHeading(tr("Recent projects"), recent));
    layout->addSpacing(look::unit);
    layout->addWidget(m_stack, 1);
    return recent;
}

void StartPage::fillList()
{
    // A whole new list, as the list adds rows at its end only and the newest project comes first.
    m_list->clearAllItems();
    const QStringList paths = m_recent->paths();
    for (const QString &path : paths)
        m_list->addCustomItem(rowText(path), path);
    markMissing();
    m_list->setCurrentRow(0);
    showListOrHint();
}

void StartPage::removeRow(int index)
{
    m_list->deleteItem(index);
    showListOrHint();
}

void StartPage::showListOrHint()
{
    if (m_list->count() > 0)
        m_stack->setCurrentWidget(m_list);
    else
        m_stack->setCurrentWidget(m_hint);
}

void StartPage::markMissing()
{
    for (int index = 0; index < m_list->count(); ++index) {
        CustomListWidgetItem *row = rowAt(index);
        const bool isMissing = !QFileInfo::exists(row->getProjectPath());
        row->setValidIcon(isMissing);
        m_list->item(index)->setData(Qt::AccessibleTextRole,
                                     isMissing ? tr("%1, missing").arg(row->getProjectPath())
                                               : row->getProjectPath());
    }
}

CustomListWidgetItem *StartPage::rowAt(int index) const
{
    return qobject_cast<CustomListWidgetItem *>(m_list->itemWidget(m_list->item(index)));
}

bool StartPage::event(QEvent *event)
{
    // Files come and go while the user is in another program.
    if (event->type() == QEvent::WindowActivate)
        markMissing();
    return QWidget::event(event);
}

void StartPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    markMissing();
}

bool StartPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress && m_list->currentRow() >= 0) {
        // A copy: what is asked for may change the list.
        const QString path = rowAt(m_list->currentRow())->getProjectPath();
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Q_EMIT openRequested(path);
            return true;
        case Qt::Key_Delete:
            m_recent->remove(path);
            return true;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void StartPage::dragEnterEvent(QDragEnterEvent *event)
{
    if (draggedFile(event->mimeData()).isEmpty())
        return;
    event->acceptProposedAction();
    setDropShown(true);
}

void StartPage::dragLeaveEvent(QDragLeaveEvent *event)
{
    QWidget::dragLeaveEvent(event);
    setDropShown(false);
}

void StartPage::dropEvent(QDropEvent *event)
{
    setDropShown(false);
    const QString path = draggedFile(event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    Q_EMIT openRequested(path);
}

void StartPage::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (!m_isDropShown)
        return;
    QPainter painter(this);
    painter.setPen(QPen(look::accent, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void StartPage::setDropShown(bool isShown)
{
    m_isDropShown = isShown;
    update();
}

} // namespace wall
