#ifndef HOSTFRAME_H
#define HOSTFRAME_H

#include <windowframe.h>

class LayoutWarningsMuted;

/**
 * A main window on the library's WindowFrame, with what the frame leaves to its host: it fits the
 * screen, places the logo, can be resized by its edges, and closes.
 *
 * It starts maximised; the title's button, a double click on the title and slot_showMaximized()
 * lead to its normal size and back. Content goes in by setCentralWidget().
 */
class HostFrame : public WindowFrame
{
    Q_OBJECT

public:
    /// \a normalSize is its size at first when it is not maximised, and \a smallestSize the one
    /// that its edges stop at, in pixels. Both are cut to the screen.
    HostFrame(const QSize &normalSize, const QSize &smallestSize, QWidget *parent = nullptr);

    /// Shows a picture, by its resource path, and the program's name at the left of the title.
    void setLogo(const QString &picturePath, const QString &text);
    /// Whether it covers the screen.
    bool isMaximizedFrame() const;

    /// Gives the window a size of its own, in pixels.
    void resizeFrame(const QSize &size);

protected:
    /// Whether the window may close now; a host asks here for what has to be saved.
    virtual bool mayClose();

    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    HostFrame(const LayoutWarningsMuted &muted, const QSize &normalSize, const QSize &smallestSize,
              QWidget *parent);
    void followScreen();

    QSize m_maximumSize;
    bool m_isResizing = false;
};

#endif // HOSTFRAME_H
