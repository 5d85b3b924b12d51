#include "custommegbox.h"

#include "custommessagebox.h"

#include <QPixmap>

namespace
{

constexpr int tipButtonHeight = 30;

QPixmap sign(const QString &fileName)
{
    return QPixmap(":/Resource/Images/globalResource/messageBox/" + fileName);
}

int run(CustomMessageBox *box)
{
    box->raise();
    return box->exec(); // which deletes the box
}

/// A message that can only be acknowledged. The texts of the hidden buttons never show.
int runWithOk(QWidget *parent, const QString &title, const QString &text, const QString &fileName,
              const QString &okText, const QString &cancelText = QString())
{
    auto *box = new CustomMessageBox(parent);
    box->setBoxInformation(title, text, sign(fileName), false, false, true, true, QString(), okText,
                           cancelText);
    return run(box);
}

} // namespace

int CustomMegBox::informationMessageBox(QWidget *parent, QString title, QString text,
                                        QString okText)
{
    return runWithOk(parent, title, text, "information.png", okText);
}

int CustomMegBox::waringMessageBox(QWidget *parent, QString title, QString text, QString okText)
{
    return runWithOk(parent, title, text, "waring.png", okText);
}

int CustomMegBox::criticalMessageBox(QWidget *parent, QString title, QString text, QString okText)
{
    return runWithOk(parent, title, text, "error.png", okText, "cancelText");
}

int CustomMegBox::questionMessageBox(QWidget *parent, QString title, QString text, QString okText,
                                     QString cancelText)
{
    auto *box = new CustomMessageBox(parent);
    box->setBoxInformation(title, text, sign("question.png"), false, false, false, true, QString(),
                           okText, cancelText);
    return run(box);
}

int CustomMegBox::questionMessageBox(QWidget *parent, QString title, QString text, bool keepOpen,
                                     QString applyText, QString okText, QString cancelText)
{
    auto *box = new CustomMessageBox(parent);
    box->setBoxInformation(title, text, sign("question.png"), keepOpen, false, false, false,
                           applyText, okText, cancelText);
    return run(box);
}

int CustomMegBox::tipMessageBox(QWidget *parent, QString title, QString text, bool keepOpen,
                                QString applyText, QString okText, QString cancelText,
                                bool closeVisible, int applyWidth, int okWidth, int cancelWidth)
{
    auto *box = new CustomMessageBox(parent);
    box->setAppltBtnSize(applyWidth, tipButtonHeight);
    box->setOkBtnSize(okWidth, tipButtonHeight);
    box->setCancleBtnSize(cancelWidth, tipButtonHeight);
    box->setBoxInformation(title, text, sign("question.png"), keepOpen, false, false, false,
                           applyText, okText, cancelText);
    box->setCloseBtnIsVisible(closeVisible);
    return run(box);
}
