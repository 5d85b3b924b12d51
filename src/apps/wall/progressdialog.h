#ifndef WALL_PROGRESSDIALOG_H
#define WALL_PROGRESSDIALOG_H

#include "model/progress.h"

#include <QDialog>
#include <QElapsedTimer>

class QProgressBar;

namespace wall
{

/// Shows how far long work has come, and lets the user cancel it. Work that is done quickly is
/// over before the dialog appears.
class ProgressDialog : public QDialog
{
    Q_OBJECT

public:
    ProgressDialog(const QString &text, QWidget *parent);

    /// What to give to the work; valid as long as the dialog.
    Progress progress();
    bool isCancelled() const;
    /// Sets how long the work goes on unseen, in milliseconds.
    void setDelay(int milliseconds);

public Q_SLOTS:
    /// Cancels the work, as Escape and the button do.
    void reject() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool update(int percent);

    QProgressBar *m_bar;
    QElapsedTimer m_elapsed;
    int m_delay = 300;
    bool m_isCancelled = false;
};

} // namespace wall

#endif // WALL_PROGRESSDIALOG_H
