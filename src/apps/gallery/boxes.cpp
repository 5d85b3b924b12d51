#include "boxes.h"

#include "controls.h"
#include "theme.h"

#include <custommessagebox.h>

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <QPixmap>

namespace boxes
{

void fill(CustomMessageBox *box, const Content &content)
{
    const QPixmap icon(":/Resource/Images/globalResource/messageBox/" + content.icon);
    box->setBoxInformation(content.title, content.text, icon, false, content.okText.isEmpty(),
                           content.cancelText.isEmpty(), content.applyText.isEmpty(),
                           content.applyText, content.okText, content.cancelText);
}

CustomMessageBox *makeEmbedded(QWidget *parent, const Content &content)
{
    auto *box = new CustomMessageBox(parent);
    fill(box, content);
    embed(box, parent);
    return box;
}

void embed(CustomMessageBox *box, QWidget *parent)
{
    box->setParent(parent, Qt::Widget);
    box->setAttribute(Qt::WA_DeleteOnClose, false);
    box->setFixedSize(box->size());
}

Sample makePart(QWidget *parent, const QString &name)
{
    auto *window = new QWidget(parent);
    CustomMessageBox *box =
        makeEmbedded(window, {"question.png", "Send the layout?", "Apply", "OK", "Cancel"});
    box->setCloseBtnIsVisible(true);
    box->grab(); // lays it out
    auto *part = box->findChild<QWidget *>(name);
    const QRect visible =
        QRect(part->mapTo(box, QPoint(0, 0)), part->size()).adjusted(-4, -4, 4, 4);
    window->setFixedSize(visible.size());
    box->move(-visible.topLeft());
    auto *button = part->findChild<QAbstractButton *>();
    return {window, box, button ? button : part};
}

QWidget *makeCalls(const QList<QPair<QString, std::function<int(QWidget *)>>> &calls)
{
    auto *panel = new QWidget;
    auto *grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::margin);
    grid->setVerticalSpacing(theme::gap);
    grid->setColumnStretch(1, 1);
    for (const auto &call : calls) {
        const int row = grid->rowCount();
        auto *button = makeButton(call.first, NoActivatedBtn, panel);
        auto *result = new QLabel("not opened yet", panel);
        grid->addWidget(button, row, 0);
        grid->addWidget(result, row, 1);
        QObject::connect(button, &PushButtonEx::clicked, result, [=] {
            result->setText(QString("returned %1").arg(call.second(panel->window())));
        });
    }
    return panel;
}

} // namespace boxes
