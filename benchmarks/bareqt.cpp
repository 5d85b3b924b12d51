#include "bareqt.h"

#include <QCheckBox>
#include <QEvent>
#include <QFontMetrics>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QSpacerItem>
#include <QVBoxLayout>

namespace bareqt
{

namespace
{

QString cabinetSheet()
{
    return QStringLiteral(
        "QToolButton{background:#454545;color:#000000;font:9pt \"微软雅黑\" ;border:0px;}"
        "QToolButton:Hover{background:#657c98;color:#dadada; border:1px solid #4382ce;}"
        "QToolButton:Pressed{background:#4291f0;color:#dadada; border:1px solid #0767aa;}"
        "QToolButton:disabled{background:#454545;color:#000000;font:9pt \"微软雅黑\" ;border:0px;}"
        "QToolTip{background-color:rgb(56,56,56);color:rgb(178,178,178);font:SimSun Arial;"
        "border:1px solid rgb(128,128,128);}");
}

QString checkBoxSheet()
{
    return QStringLiteral(
        "QCheckBox{spacing:5px;}QCheckBox::disabled{color:#707070;font: SimSun Arial;}"
        "QCheckBox::indicator{width:15px;height:15px;}"
        "QCheckBox::indicator:unchecked{border-image: "
        "url(:/Resource/Images/globalResource/checkbox/checkbox_normal.png);color:white;}"
        "QCheckBox::indicator:unchecked:hover{border-image: "
        "url(:/Resource/Images/globalResource/checkbox/checkbox_unchecked_hover.png);color:white;}"
        "QCheckBox::indicator:checked{border-image: "
        "url(:/Resource/Images/globalResource/checkbox/checkbox_pressed.png);color:#ffffff}"
        "QCheckBox::indicator:checked:hover{border-image: "
        "url(:/Resource/Images/globalResource/checkbox/checkbox_checked_hover.png);color:#ffffff}"
        "QCheckBox::indicator:checked:disabled{"
        "image:url(:/Resource/Images/globalResource/checkbox/checked_disabled.png);}");
}

QString arrowSheet(const QString &side)
{
    return QString("QToolButton{border-image: "
                   "url(:/Resource/Images/globalResource/drawer/btn_%1_normal.png);}"
                   "QToolButton:pressed{border-image: "
                   "url(:/Resource/Images/globalResource/drawer/btn_%1_pressed.png);}")
        .arg(side);
}

QString portSheet(int port)
{
    return QString("QToolButton{border-image: "
                   "url(:/Resource/Images/globalResource/drawer/btn_Port_normal_%1.png);}"
                   "QToolButton:hover{border-image: "
                   "url(:/Resource/Images/globalResource/drawer/btn_Port_hover_%1.png);}")
        .arg(port);
}

QString shrinkSheet(const QString &state)
{
    return QString("QToolButton{border-image: "
                   "url(:/Resource/Images/globalResource/drawer/btn_%1_normal.png);}"
                   "QToolButton:hover{border-image: "
                   "url(:/Resource/Images/globalResource/drawer/btn_%1_hover.png);}"
                   "QToolButton:pressed{border-image: "
                   "url(:/Resource/Images/globalResource/drawer/btn_%1_Pressed.png);}")
        .arg(state);
}

QString checkAllSheet()
{
    return QStringLiteral(
        "QCheckBox::indicator:unchecked{border-image: "
        "url(:/Resource/Images/globalResource/drawer/checkbox_normal.png);}"
        "QCheckBox::indicator:checked {border-image: "
        "url(:/Resource/Images/globalResource/drawer/checkbox_pressed.png);}"
        "QCheckBox::indicator:unchecked:hover{border-image: "
        "url(:/Resource/Images/globalResource/drawer/checkbox_unchecked_hover.png);}"
        "QCheckBox::indicator:checked:hover{border-image: "
        "url(:/Resource/Images/globalResource/drawer/checkbox_checked_hover.png);}");
}

QString settingsSheet(bool isSelected)
{
    const QString rest = QStringLiteral(
        "border-top-right-radius:5px;border-bottom-right-radius:5px;border-image:url("
        ":/Resource/Images/globalResource/drawer/btn_settings_pressedDouble.png);}");
    return "QToolButton{background:" + QString(isSelected ? "rgb(82,145,233);" : "rgb(99,99,99);")
        + rest + "QToolButton:hover{background:rgb(115,167,237);" + rest
        + "QToolButton:pressed{background:rgb(49,87,140);" + rest;
}

QString deleteSheet()
{
    return QStringLiteral("QToolButton{border-image:"
                          "url(:/Resource/Images/globalResource/drawer/delete_normal.png);}"
                          "QToolButton:pressed{border-image:"
                          "url(:/Resource/Images/globalResource/drawer/delete_pressed.png);}"
                          "QToolButton:disabled{border-image:"
                          "url(:/Resource/Images/globalResource/drawer/delete_disabled.png);}");
}

QString headerFrameSheet(bool isSelected)
{
    return isSelected ? QStringLiteral("#FrameRight{background:rgb(66,145,240);border-radius:5px;}")
                      : QStringLiteral("#FrameRight{background:rgb(99,99,99);border-radius:5px;}"
                                       "#FrameRight:hover{background:rgb(87,90,92);}");
}

QString nameSheet()
{
    return QStringLiteral("color:rgb(210,210,210);font:9pt \"微软雅黑\" ;");
}

template <typename Layout> Layout *withoutGaps(Layout *layout)
{
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

} // namespace

CabinetButton::CabinetButton(QWidget *parent, const StructCabinet &record)
    : QToolButton(parent)
    , m_record(record)
{
    setFixedSize(69, 69);
    setEnabled(record.cabinetCount > 0);
    setStyleSheet(cabinetSheet());
    connect(this, &QToolButton::pressed, this, [this] { Q_EMIT cabinetPressed(m_record); });
    connect(this, &QToolButton::released, this, [this] { Q_EMIT cabinetReleased(m_record); });
}

void CabinetButton::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);

    constexpr int textBandHeight = 20;
    const QSize model = m_record.cabinetSize;
    QPainter painter(this);
    painter.setBrush(QColor(183, 187, 194));
    painter.setPen(QPen(QBrush(QColor(112, 112, 112)), 1));
    const QSize area(width(), height() - textBandHeight);
    const int tenths = 7 + 3 * ((model.width() - 64) / 448);
    const int side = tenths * qMin(area.width(), area.height());
    const int unit = 10 * qMax(model.width(), model.height());
    const QSize size(side * model.width() / unit, side * model.height() / unit);
    const QRect cabinet((area.width() * unit - side * model.width()) / (2 * unit),
                        (area.height() * unit - side * model.height()) / (2 * unit), size.width(),
                        size.height());
    painter.drawRect(cabinet);
    painter.drawText(cabinet, Qt::AlignCenter, QString::number(m_record.cabinetCount));

    const QString text = QString::number(model.width()) + "x" + QString::number(model.height());
    const QFontMetrics metrics(font());
    const int textWidth = metrics.horizontalAdvance(text);
    painter.setPen(Qt::white);
    painter.drawText(QRect((width() - textWidth) / 2,
                           area.height() + (textBandHeight - metrics.height()) / 2, textWidth,
                           textBandHeight),
                     text, QTextOption());
}

QCheckBox *newCheckBox(const QString &text, QWidget *parent)
{
    auto *box = new QCheckBox(parent);
    box->setStyleSheet(checkBoxSheet());
    const int available = box->width() - 20;
    const QFontMetrics metrics(box->font());
    box->setToolTip(metrics.horizontalAdvance(text) > available ? text : QString());
    box->setText(metrics.elidedText(text, Qt::ElideRight, available));
    return box;
}

Strip::Strip(const QString &sheet, QWidget *parent)
    : QFrame(parent)
{
    setStyleSheet(sheet);
    auto *grid = withoutGaps(new QGridLayout(this));
    auto *line = new QHBoxLayout;
    line->setSpacing(0);
    line->setContentsMargins(-1, 0, -1, 0);

    auto *leftFrame = new QFrame(this);
    leftFrame->setFixedSize(16, 16);
    line->addWidget(leftFrame);

    auto *middle = new QFrame(this);
    auto *middleGrid = withoutGaps(new QGridLayout(middle));
    auto *middleLine = new QHBoxLayout;
    middleLine->setSpacing(0);
    auto *areaFrame = new QFrame(middle);
    auto *areaGrid = new QGridLayout(areaFrame);
    areaGrid->setContentsMargins(0, 0, 0, 0);
    m_scrollArea = new QScrollArea(areaFrame);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    areaGrid->addWidget(m_scrollArea, 0, 0);
    auto *holder = new QWidget; // of the strip's form; the cabinets take its place
    holder->setGeometry(0, 0, 138, 69);
    withoutGaps(new QGridLayout(holder));
    m_scrollArea->setWidget(holder);
    middleLine->addWidget(areaFrame);
    middleGrid->addLayout(middleLine, 0, 0);
    line->addWidget(middle);

    auto *rightFrame = new QFrame(this);
    rightFrame->setFixedSize(16, 16);
    line->addWidget(rightFrame);
    grid->addLayout(line, 0, 0);

    auto *leftArrow = new QToolButton(leftFrame);
    leftArrow->setGeometry(leftFrame->rect());
    leftArrow->setStyleSheet(arrowSheet(QStringLiteral("Left")));
    leftArrow->hide();
    m_rightArrow = new QToolButton(rightFrame);
    m_rightArrow->setGeometry(rightFrame->rect());
    m_rightArrow->setStyleSheet(arrowSheet(QStringLiteral("Right")));
    m_rightArrow->hide();
    auto *leftPlaceholder = new QLabel(leftFrame);
    leftPlaceholder->setGeometry(leftFrame->rect());
    m_rightPlaceholder = new QLabel(rightFrame);
    m_rightPlaceholder->setGeometry(rightFrame->rect());
}

void Strip::setContent(QWidget *content)
{
    m_scrollArea->setWidget(content);
    m_scrollArea->setFixedSize(138, 69);
    const bool isTooWide = content->width() > m_scrollArea->width();
    m_rightArrow->setVisible(isTooWide);
    m_rightPlaceholder->setVisible(!isTooWide);
}

Row::Row(int port, QWidget *parent)
    : QWidget(parent)
{
    setFixedHeight(74);
    auto *grid = withoutGaps(new QGridLayout(this));
    auto *line = withoutGaps(new QHBoxLayout);
    line->setSpacing(6);

    auto *number = new QLabel(QString::number(port), this);
    number->setFixedSize(16, 20);
    number->setStyleSheet(
        QStringLiteral("QLabel{background:rgb(69,69,69); color:rgb(210,210,210);}"));
    line->addWidget(number);

    auto *portButton = new QToolButton(this);
    portButton->setFixedSize(30, 30);
    portButton->setStyleSheet(portSheet(port));
    connect(portButton, &QToolButton::pressed, this, [this] { Q_EMIT portPressed(this); });
    line->addWidget(portButton);

    m_strip = new Strip(QStringLiteral("background:rgb(69,69,69);"), this);
    m_strip->setFixedSize(180, 74);
    line->addWidget(m_strip);
    m_content = new QWidget;

    grid->addLayout(line, 0, 0);
    grid->addItem(new QSpacerItem(40, 0, QSizePolicy::Expanding, QSizePolicy::Expanding), 0, 1);
}

void Row::addCabinet(const StructCabinet &record)
{
    auto *cabinet = new CabinetButton(m_content, record);
    connect(cabinet, &CabinetButton::cabinetPressed, this, &Row::cabinetPressed);
    connect(cabinet, &CabinetButton::cabinetReleased, this, &Row::cabinetReleased);
    cabinet->move(cabinet->width() * m_cabinets.size(), 0);
    m_cabinets.append(cabinet);
    m_content->setFixedSize(cabinet->width() * m_cabinets.size(), cabinet->height());
}

void Row::finish()
{
    m_strip->setContent(m_content);
    m_strip->show();
}

QFrame *newToolBar(int leftCount, QWidget *parent)
{
    auto *bar = new QFrame(parent);
    bar->setStyleSheet(QStringLiteral("QFrame{background:rgb(69, 69, 69);}"));
    const auto newEnd = [bar](const QMargins &margins) {
        auto *end = new QFrame(bar);
        end->setLineWidth(0);
        (new QHBoxLayout(end))->setContentsMargins(margins);
        return end;
    };
    QFrame *left = newEnd(QMargins(16, 5, 0, 5));
    QFrame *right = newEnd(QMargins(0, 5, 16, 5));
    auto *layout = new QHBoxLayout(bar);
    layout->addWidget(left);
    layout->addStretch(10);
    layout->addWidget(right);
    layout->setContentsMargins(0, 0, 0, 0);
    bar->setFrameShape(QFrame::Box);
    bar->setFrameShadow(QFrame::Raised);
    bar->setFixedHeight(40);
    bar->setContentsMargins(0, 0, 0, 0);

    const auto addButton = [bar](QFrame *end) {
        auto *button = new QToolButton(bar);
        button->setFixedSize(30, 30);
        end->layout()->addWidget(button);
    };
    for (int i = 0; i < leftCount; ++i)
        addButton(left);
    auto *lineLayout = new QHBoxLayout;
    lineLayout->setContentsMargins(6, 0, 6, 0);
    auto *line = new QFrame(left);
    line->setFrameShape(QFrame::VLine);
    line->setFixedSize(1, 20);
    line->setStyleSheet(QStringLiteral("background-color: rgb(112, 112, 112); border:0;"));
    lineLayout->addWidget(line);
    static_cast<QHBoxLayout *>(left->layout())->addLayout(lineLayout);
    addButton(right);
    return bar;
}

Body::Body(QWidget *parent)
    : QWidget(parent)
    , m_column(withoutGaps(new QVBoxLayout(this)))
{
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QWidget#DrawerItemContent{background:rgb(69,69,69);}"
                                 "QToolTip{background-color:rgb(56,56,56);color:rgb(178,178,178);"
                                 "font:SimSun Arial;border:1px solid rgb(128,128,128);}"));
}

void Body::addRow(int port, const QList<StructCabinet> &cabinets)
{
    auto *row = new Row(port, this);
    connect(row, &Row::portPressed, this, &Body::portPressed);
    connect(row, &Row::cabinetPressed, this, &Body::cabinetPressed);
    connect(row, &Row::cabinetReleased, this, &Body::cabinetReleased);
    for (const StructCabinet &cabinet : cabinets)
        row->addCabinet(cabinet);
    row->finish();
    m_column->addWidget(row);
    m_rows.append(row);
    setFixedHeight(m_rows.size() * row->height());
}

DrawerEntry::DrawerEntry(const QString &device, const QString &port, bool isOnline, QWidget *parent)
    : QWidget(parent)
    , m_isOnline(isOnline)
{
    auto *header = new QFrame(this);
    header->setFixedHeight(42);
    header->installEventFilter(this);
    auto *headerGrid = withoutGaps(new QGridLayout(header));
    auto *headerLine = new QHBoxLayout;
    headerLine->setSpacing(6);
    headerGrid->addLayout(headerLine, 0, 0);

    m_shrinkButton = new QToolButton(header);
    m_shrinkButton->setFixedSize(10, 10);
    m_shrinkButton->setStyleSheet(shrinkSheet(QStringLiteral("close")));
    connect(m_shrinkButton, &QToolButton::clicked, this, [this] { Q_EMIT headerClicked(this); });
    headerLine->addWidget(m_shrinkButton);

    auto *checkAllBox = new QCheckBox(header);
    checkAllBox->setFixedSize(20, 20);
    checkAllBox->setStyleSheet(checkAllSheet());
    checkAllBox->hide();
    connect(checkAllBox, &QCheckBox::clicked, this, [this] { Q_EMIT allChecked(this); });
    headerLine->addWidget(checkAllBox);
    headerLine->addSpacing(6);
    m_rightFrame = newRightFrame(device, port, header);
    headerLine->addWidget(m_rightFrame);

    auto *headerRow = new QHBoxLayout;
    headerRow->setSpacing(20);
    headerRow->addWidget(header);

    auto *scrollArea = new QScrollArea(this);
    scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollArea->setFrameStyle(0);
    scrollArea->setStyleSheet(QStringLiteral("background:rgb(69,69,69);"));
    scrollArea->hide();

    auto *column = withoutGaps(new QVBoxLayout);
    column->addLayout(headerRow);
    column->addWidget(scrollArea);
    withoutGaps(new QGridLayout(this))->addLayout(column, 0, 0);
}

QWidget *DrawerEntry::newRightFrame(const QString &device, const QString &port, QWidget *parent)
{
    auto *frame = new QFrame(parent);
    frame->setObjectName(QStringLiteral("FrameRight"));
    auto *grid = new QGridLayout(frame);
    grid->setSpacing(0);
    grid->setContentsMargins(5, 0, 0, 0);
    auto *line = new QHBoxLayout;
    line->setSpacing(6);
    grid->addLayout(line, 0, 0);

    auto *dot = new QToolButton(frame);
    dot->setFixedSize(8, 8);
    dot->setStyleSheet(m_isOnline
                           ? QStringLiteral("background:rgb(47,195,123);border-radius:2px;")
                           : QStringLiteral("background:rgb(153,153,153);border-radius:2px;"));
    line->addWidget(dot);

    auto *names = new QFrame(frame);
    auto *namesGrid = withoutGaps(new QGridLayout(names));
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    namesGrid->addLayout(column, 0, 0);
    auto *deviceLabel = new QLabel(device, names);
    deviceLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    deviceLabel->setStyleSheet(nameSheet());
    column->addWidget(deviceLabel);
    auto *portLabel = new QLabel(names);
    portLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    portLabel->setStyleSheet(nameSheet());
    portLabel->setFixedWidth(160);
    portLabel->setText(portLabel->fontMetrics().elidedText(port, Qt::ElideRight, 160));
    column->addWidget(portLabel);
    line->addWidget(names);
    line->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));

    m_rightButton = new QToolButton(frame);
    m_rightButton->setFixedSize(43, 42);
    m_rightButton->setEnabled(m_isOnline);
    m_rightButton->setStyleSheet(m_isOnline ? settingsSheet(false) : deleteSheet());
    connect(m_rightButton, &QToolButton::clicked, this,
            [this] { Q_EMIT rightButtonClicked(this); });
    line->addWidget(m_rightButton);

    auto *count = new QLabel(frame);
    count->hide();
    count->setFixedSize(55, 20);
    count->setAlignment(Qt::AlignRight);
    count->setStyleSheet(QStringLiteral("color:rgb(210,210,210);"));
    line->addWidget(count);
    return frame;
}

void DrawerEntry::setSelected(bool isSelected)
{
    m_rightFrame->setStyleSheet(headerFrameSheet(isSelected));
    // A button that looks the same in either state keeps its sheet.
    if (m_isOnline && isSelected)
        m_rightButton->setStyleSheet(settingsSheet(true));
}

void DrawerEntry::expand()
{
    m_shrinkButton->setStyleSheet(shrinkSheet(QStringLiteral("open")));
}

bool DrawerEntry::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        Q_EMIT headerClicked(this);
    return QWidget::eventFilter(watched, event);
}

Stack::Stack(QWidget *parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
{
    m_column->setSpacing(10);
    m_column->addStretch(0);
}

void Stack::addEntry(DrawerEntry *entry)
{
    m_column->insertWidget(m_entries.size(), entry); // above the stretch
    connect(entry, &DrawerEntry::headerClicked, this, &Stack::entryClicked);
    m_entries.append(entry);
}

void Stack::select(DrawerEntry *entry)
{
    for (DrawerEntry *other : qAsConst(m_entries))
        other->setSelected(other == entry);
    entry->expand();
}

} // namespace bareqt
