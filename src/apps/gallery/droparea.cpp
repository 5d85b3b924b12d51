#include "droparea.h"

#include "cabinets.h"
#include "theme.h"

#include <QDragEnterEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMimeData>
#include <QPainter>

#include <cstring>

namespace
{

const QString cabinetFormat = QStringLiteral("CabinetInfo");

/// The drag's bytes are those of a record that is still alive: copying it shares its texts.
StructCabinet recordIn(const QByteArray &bytes)
{
    alignas(StructCabinet) char image[sizeof(StructCabinet)];
    std::memcpy(image, bytes.constData(), sizeof image);
    return *reinterpret_cast<const StructCabinet *>(image);
}

bool isCabinet(const QDropEvent &event)
{
    // From another process the texts would be addresses into its memory.
    return event.source() && event.mimeData()->data(cabinetFormat).size() == sizeof(StructCabinet);
}

QLabel *quietLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, theme::quietText);
    label->setPalette(palette);
    return label;
}

} // namespace

DropArea::DropArea(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel("Drop area", this))
    , m_fields(new QGridLayout)
{
    setAcceptDrops(true);
    setMinimumSize(46 * theme::unit, 62 * theme::unit); // a whole record
    m_title->setFont(theme::headingFont());
    m_fields->setHorizontalSpacing(theme::margin);
    m_fields->setVerticalSpacing(theme::unit);
    m_fields->setColumnStretch(1, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    layout->setSpacing(theme::gap);
    layout->addWidget(m_title);
    layout->addLayout(m_fields);
    layout->addStretch(1);
    showFields(m_title->text(), {{"Takes", "cabinets and senders"}});
}

void DropArea::dragEnterEvent(QDragEnterEvent *event)
{
    if (!isCabinet(*event) && !event->mimeData()->hasText())
        return;
    event->acceptProposedAction();
    setAwaiting(true);
}

void DropArea::dragLeaveEvent(QDragLeaveEvent *)
{
    setAwaiting(false);
}

void DropArea::dropEvent(QDropEvent *event)
{
    setAwaiting(false);
    event->acceptProposedAction();
    if (isCabinet(*event)) {
        const StructCabinet record = recordIn(event->mimeData()->data(cabinetFormat));
        showFields("A cabinet arrived", cabinets::mainFields(record));
        Q_EMIT cabinetArrived(record);
    } else {
        showFields("A text arrived", {{"Text", event->mimeData()->text()}});
        Q_EMIT textArrived(event->mimeData()->text());
    }
}

void DropArea::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(m_isAwaiting ? theme::accent : theme::disabledText);
    pen.setDashPattern({4, 4});
    painter.setPen(pen);
    painter.setBrush(m_isAwaiting ? theme::raised : theme::well);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme::cornerRadius,
                            theme::cornerRadius);
}

void DropArea::showFields(const QString &title, const QList<QPair<QString, QString>> &fields)
{
    m_title->setText(title);
    while (QLayoutItem *item = m_fields->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    int row = 0;
    for (const QPair<QString, QString> &field : fields) {
        m_fields->addWidget(quietLabel(field.first, this), row, 0);
        m_fields->addWidget(new QLabel(field.second, this), row, 1);
        ++row;
    }
}

void DropArea::setAwaiting(bool awaiting)
{
    m_isAwaiting = awaiting;
    update();
}
