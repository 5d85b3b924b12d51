#ifndef ORVANE_TESTS_WALLHOST_H
#define ORVANE_TESTS_WALLHOST_H

#include "document.h"
#include "model/sampleprojects.h"
#include "selection.h"

#include <pushbuttonex.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>

/// The demo project open in a document, with a selection, as every view gets them.
struct DemoHost {
    DemoHost() { document.reset(wall::demoProject(), QString()); }

    wall::Project *project() const { return document.project(); }

    wall::Document document;
    wall::Selection selection{document.project()};
};

/// The button of \a window with that text, null if there is none.
inline PushButtonEx *buttonNamed(const QWidget *window, const QString &text)
{
    for (PushButtonEx *button : window->findChildren<PushButtonEx *>()) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

/// Answers the next modal dialog, whose exec() would otherwise not return.
class DialogAnswer
{
public:
    explicit DialogAnswer(const std::function<void(QDialog *)> &answer)
    {
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, answer] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            m_timer.stop();
            m_count++;
            answer(dialog);
        });
        m_timer.start();
    }

    /// Answers with the button of that text.
    explicit DialogAnswer(const QString &buttonText)
        : DialogAnswer([buttonText](QDialog *dialog) {
            if (PushButtonEx *button = buttonNamed(dialog, buttonText))
                button->click();
            else
                dialog->reject();
        })
    {
    }

    /// Whether there was a dialog.
    bool wasAsked() const { return m_count == 1; }

private:
    QTimer m_timer;
    int m_count = 0;
};

#endif // ORVANE_TESTS_WALLHOST_H
