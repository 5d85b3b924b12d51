// A form of the library's controls in the colours of a host: one ground, one accent.

#include "../once.h"

#include <orvanecontrols/checkboxex.h>
#include <orvanecontrols/comboboxex.h>
#include <orvanecontrols/lineeditex.h>
#include <orvanecontrols/pushbuttonex.h>
#include <orvanecontrols/spinboxex.h>

#include <QFormLayout>
#include <QLabel>

namespace
{

const QColor ground(43, 43, 43);
const QColor text(210, 210, 210);
constexpr int controlHeight = 28;

LineEditEx *makeName()
{
    auto *edit = new LineEditEx;
    edit->setBackgroundColor(ground);
    edit->setBorderWidth(0);
    // The name becomes a file's: what is typed in vain there is told at once.
    edit->setStrToolTips("File names cannot have / \\ : < | \" * > ?");
    return edit;
}

SpinBoxEx *makeRotation()
{
    auto *box = new SpinBoxEx;
    box->setBackgroundColor(ground);
    box->setFontColor(text);
    box->setRange(0, 359);
    box->setWrapping(true); // a step up from 359 is 0
    return box;
}

ComboBoxEx *makePort()
{
    auto *box = new ComboBoxEx;
    box->setBgCurrentItemColor(ground);
    box->setBorderWidth(0);
    box->addItems({"Network", "Coaxial"});
    return box;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(56, 56, 56));
    palette.setColor(QPalette::WindowText, text);
    QApplication::setPalette(palette);

    QWidget window;
    window.setWindowTitle("Styled form");

    auto *form = new QFormLayout(&window);
    LineEditEx *name = makeName();
    SpinBoxEx *rotation = makeRotation();
    ComboBoxEx *port = makePort();
    for (QWidget *field : std::initializer_list<QWidget *>{name, rotation, port})
        field->setFixedHeight(controlHeight);
    form->addRow("Name", name);
    form->addRow("Rotation", rotation);
    form->addRow("Port", port);

    // Boxes and buttons cut their texts to the width that they have: size first, then text.
    auto *mirrored = new CheckBoxEx;
    mirrored->setFontColor(text);
    mirrored->setFixedSize(200, controlHeight);
    mirrored->setText("Mirror the picture");
    form->addRow(QString(), mirrored);
    auto *apply = new PushButtonEx(nullptr, ActivatedBtn);
    apply->setFixedSize(120, controlHeight);
    apply->setText("Apply");
    form->addRow(QString(), apply);

    auto *result = new QLabel("Nothing applied yet.");
    form->addRow(result);
    QObject::connect(apply, &QPushButton::clicked, result, [=] {
        result->setText(QString("%1, %2 degrees, %3%4")
                            .arg(name->text(), QString::number(rotation->value()),
                                 port->currentText(), mirrored->isChecked() ? ", mirrored" : ""));
    });

    window.resize(360, window.sizeHint().height());
    window.show();
    quitOnce([&window] { return isOnScreen(&window); });
    return QApplication::exec();
}
