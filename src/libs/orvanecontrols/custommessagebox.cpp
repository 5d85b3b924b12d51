#include "custommessagebox.h"

#include "internal/spokenname.h"
#include "internal/stylesheet.h"
#include "internal/taborder.h"
#include "pushbuttonex.h"
#include "ui_custommessagebox.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>

#include <cmath>

namespace
{

enum ResultCode : int {
    CancelResult = 0,
    OkResult = 1,
    ApplyResult = 2,
    CloseResult = 255,
};

// How a box grows with its text.
constexpr int overflowPerLine = 300;
constexpr int greatestWidening = 280;

constexpr int shadowWidth = 10;
constexpr QRgb groundColor = qRgb(69, 69, 69);
constexpr qreal shadowAlpha = 150;
constexpr qreal shadowFade = 50;

PushButtonEx *makeButton(QWidget *frame, BtnType type)
{
    auto *button = new PushButtonEx(frame, type);
    button->setFixedSize(frame->size());
    return button;
}

void setButtonSize(QWidget *frame, QWidget *button, int w, int h)
{
    frame->setFixedSize(w, h);
    button->setFixedSize(frame->size());
}

} // namespace

CustomMessageBox::CustomMessageBox(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_ui(std::make_unique<Ui::CustomMessageBox>())
{
    m_ui->setupUi(this);
    setWindowIcon(QIcon(":/Resource/Image/logo.png"));
    createControls();
    moveWindow(parent);
    m_parentWidget = parent;
    m_ui->formLayout->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_ui->formLayout->setFormAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    orvane::applyStyleSheet(this, QStringLiteral("color:rgb(210,210,210);font:SimSun Arial;"));
    m_ui->labelTips->ensurePolished(); // so that texts are measured with the font they are shown in
    orvane::applyStyleSheet(
        m_ui->toolButton,
        QStringLiteral("QToolButton{border-image:"
                       "url(':/Resource/Image/titleBar/btn_close_normal@2x.png');}"
                       "QToolButton:hover{border-image:"
                       "url(':/Resource/Image/titleBar/btn_close_hover@2x.png');}"
                       "QToolButton:pressed{border-image:"
                       "url(':/Resource/Image/titleBar/btn_close_pressed@2x.png');}"));
    orvane::speakAs(m_ui->toolButton, tr("Close"));
    connect(m_ui->toolButton, &QToolButton::clicked, this, &CustomMessageBox::slot_closeBtnClicked);
    m_ui->toolButton->hide();
}

CustomMessageBox::~CustomMessageBox() = default;

void CustomMessageBox::setBoxInformation(QString title, QString text, QPixmap icon,
                                         bool keepOpenOnApply, bool hideOk, bool hideCancel,
                                         bool hideApply, QString applyText, QString okText,
                                         QString cancelText)
{
    QLabel *tips = m_ui->labelTips;
    m_ui->labelTitle->setText("  " + title + "  ");
    tips->setText(text);
    const QFontMetrics metrics(tips->font());
    // Until the first show no layout has moved the label: it stands at 0 with the form's width,
    // which is its width in a box of the form's size too.
    const int overflow = metrics.horizontalAdvance(text) - tips->width() - tips->x();
    m_ui->labelIcon->setPixmap(icon);

    m_okButton->setText(okText);
    m_ui->frame_ok->setVisible(!hideOk);
    m_cancelButton->setText(cancelText);
    m_ui->frame_cancel->setVisible(!hideCancel);
    m_applyButton->setText(applyText);
    m_ui->frame_apply->setVisible(!hideApply);
    m_keepOpenOnApply = keepOpenOnApply;
    m_okButton->setDefault(true);
    if (!hideOk)
        m_okButton->setFocus(); // or Return would click the first button that has been made

    if (overflow <= 0)
        return;
    if (overflow > overflowPerLine) {
        resize(width() + greatestWidening,
               height() + (overflow / overflowPerLine) * metrics.height());
    } else {
        resize(width() + overflow, height());
    }
    moveWindow(m_parentWidget);
}

void CustomMessageBox::setCloseBtnIsVisible(bool isVisible)
{
    m_ui->toolButton->setVisible(isVisible);
}

void CustomMessageBox::setAppltBtnSize(int w, int h)
{
    setButtonSize(m_ui->frame_apply, m_applyButton, w, h);
}

void CustomMessageBox::setOkBtnSize(int w, int h)
{
    setButtonSize(m_ui->frame_ok, m_okButton, w, h);
}

void CustomMessageBox::setCancleBtnSize(int w, int h)
{
    setButtonSize(m_ui->frame_cancel, m_cancelButton, w, h);
}

void CustomMessageBox::moveWindow(QWidget *parent)
{
    // Neither a parent that is no window nor a screen off the origin is mapped; hosts rely on the
    // places that result.
    if (!parent) {
        const QScreen *primary = QGuiApplication::primaryScreen();
        const QSize screen = primary ? primary->size() : QSize();
        move((screen.width() - width()) / 2, (screen.height() - height()) / 2);
        return;
    }
    const QPoint offset((parent->width() - width()) / 2, (parent->height() - height()) / 2);
    const QPoint centred = parent->pos() + offset;
    move(centred.x() >= 0 && centred.y() >= 0 ? centred : offset);
}

void CustomMessageBox::createControls()
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_TranslucentBackground);

    QFont titleFont = m_ui->labelTitle->font();
    titleFont.setWeight(QFont::Bold);
    m_ui->labelTitle->setFont(titleFont);
    m_ui->labelTips->setAlignment(Qt::AlignTop);

    if (m_applyButton)
        return; // a second set of buttons would lie on the first
    m_applyButton = makeButton(m_ui->frame_apply, ActivatedBtn);
    connect(m_applyButton, &PushButtonEx::clicked, this, &CustomMessageBox::on_handleApplyClicked);
    m_okButton = makeButton(m_ui->frame_ok, ActivatedBtn);
    connect(m_okButton, &PushButtonEx::clicked, this, &CustomMessageBox::on_handleOkClicked);
    m_cancelButton = makeButton(m_ui->frame_cancel, NoActivatedBtn);
    connect(m_cancelButton, &PushButtonEx::clicked, this,
            &CustomMessageBox::on_handleCancelClicked);
    orvane::tabInOrder({m_okButton, m_applyButton, m_cancelButton});
}

void CustomMessageBox::on_handleOkClicked()
{
    finishWith(OkResult);
}

void CustomMessageBox::on_handleCancelClicked()
{
    finishWith(CancelResult);
}

void CustomMessageBox::on_handleApplyClicked()
{
    if (finishWith(ApplyResult) && !m_keepOpenOnApply)
        close();
}

void CustomMessageBox::slot_closeBtnClicked()
{
    if (finishWith(CloseResult))
        close();
}

bool CustomMessageBox::finishWith(int result)
{
    const QPointer<CustomMessageBox> self(this);
    m_result = result;
    done(result); // a host may delete the box in finished()
    return self;
}

void CustomMessageBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        const QPointer<CustomMessageBox> self(this);
        accept();
        if (!self)
            return;
    }
    QDialog::keyPressEvent(event);
}

void CustomMessageBox::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_isDragging = true;
    m_dragOffset = event->globalPos() - pos();
}

void CustomMessageBox::mouseMoveEvent(QMouseEvent *event)
{
    if (m_isDragging)
        move(event->globalPos() - m_dragOffset);
}

void CustomMessageBox::mouseReleaseEvent(QMouseEvent *)
{
    m_isDragging = false;
}

void CustomMessageBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const auto insetBy = [this](int inset) {
        return QRect(inset, inset, width() - 2 * inset, height() - 2 * inset);
    };
    QPainterPath ground;
    ground.setFillRule(Qt::WindingFill);
    ground.addRect(insetBy(shadowWidth));
    painter.fillPath(ground, QColor(groundColor));

    QColor shadow(Qt::black);
    painter.setBrush(Qt::NoBrush);
    for (int ring = 0; ring < shadowWidth; ++ring) {
        shadow.setAlpha(int(shadowAlpha - shadowFade * std::sqrt(ring)));
        painter.setPen(shadow);
        painter.drawRect(insetBy(shadowWidth - ring));
    }
}
