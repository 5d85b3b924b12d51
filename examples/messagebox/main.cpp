// A question with the library's message box. Its close button and its icon are the host's pictures:
// messagebox.qrc provides them under the names that the box asks for.

#include "../once.h"

#include <orvanecontrols/custommegbox.h>
#include <orvanecontrols/pushbuttonex.h>

#include <QLabel>
#include <QVBoxLayout>

namespace
{

/// What tipMessageBox() returns; a class of the host's own would name these once.
enum Answer : int { CancelAnswer = 0, SaveAnswer = 1, DiscardAnswer = 2, CloseAnswer = 255 };

Answer ask(QWidget *parent)
{
    constexpr bool keepOpen = false;
    constexpr bool isCloseButtonShown = true;
    constexpr int buttonWidth = 80;
    return Answer(CustomMegBox::tipMessageBox(
        parent, "Unsaved changes", "The wall has changes that are not saved.", keepOpen, "Discard",
        "Save", "Cancel", isCloseButtonShown, buttonWidth, buttonWidth, buttonWidth));
}

QString answerText(Answer answer)
{
    switch (answer) {
    case SaveAnswer:
        return "You saved.";
    case DiscardAnswer:
        return "You discarded the changes.";
    case CancelAnswer:
    case CloseAnswer:
        break;
    }
    return "You went on.";
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(56, 56, 56));
    palette.setColor(QPalette::WindowText, QColor(210, 210, 210));
    QApplication::setPalette(palette); // for the message, too

    QWidget window;
    window.setWindowTitle("Message box");

    auto *close = new PushButtonEx(nullptr, ActivatedBtn);
    close->setFixedSize(160, 28); // before the text, which is cut to the button's width
    close->setText("Close the project");
    auto *answer = new QLabel("Nothing asked yet.");
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(close);
    layout->addWidget(answer);
    layout->addStretch(1);
    QObject::connect(close, &QPushButton::clicked, answer,
                     [&window, answer] { answer->setText(answerText(ask(&window))); });

    window.resize(560, 320);
    window.show();
    if (QApplication::arguments().contains("--once"))
        QTimer::singleShot(0, close, &QPushButton::click);
    quitOnce([] {
        QWidget *box = QApplication::activeModalWidget();
        // Closing ends the box, and with it the question.
        return isOnScreen(box) && box->close();
    });
    return QApplication::exec();
}
