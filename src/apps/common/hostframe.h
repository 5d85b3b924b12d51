#ifndef HOSTFRAME_H
#define HOSTFRAME_H

#include <windowframe.h>

#include <QString>

class LayoutWarningsMuted;

/**
 * A main window on the library's WindowFrame, with what the frame leaves to its host: it fits the
 * screen, places the logo, can be resized by its edges, and closes.
 *
 * It starts maximised; the title's button, a double click on the title and slot_showMaximized()
 * lead to its normal size, in the middle of the screen, and back. Content goes in by
 * setCentralWidget().
 */
class HostFrame : public WindowFrame
{
    Q_OBJECT

public:
    /// \a normalSize is its size at first when it is not maximised, and \a smallestSize the one
    /// that its edges stop at, in pixels. Both are cut to the screen, the first so that some of the
    /// screen is seen around it.
    HostFrame(const QSize &normalSize, const QSize &smallestSize, QWidget *parent = nullptr);

    /// Shows a picture, by its resource path, and a text at the left of the title. A text that has
    /// no room before the buttons is cut.
    void setLogo(const QString &picturePath, const QString &text);
    /// Whether it covers the screen.
    bool isMaximizedFrame() const;

    /// Gives the window a size of its own, in pixels. It is not maximised then.
    void resizeFrame(const QSize &size);

public Q_SLOTS:
    /// In the place of the frame's, which knows of no panels at the edges of the screen.
    void slot_showMaximized();

protected:
    /// Whether the window may close now; a host asks here for what has to be saved.
    virtual bool mayClose();

    void childEvent(QChildEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    HostFrame(const LayoutWarningsMuted &muted, const QSize &normalSize, const QSize &smallestSize,
              QWidget *parent);
    void beginResize(const QMouseEvent &event);
    void fitLogoText();
    void followScreen();

    QString m_logoText;
    bool m_isMaximized = true;
    bool m_isResizing = false;
    QRect m_rectAtPress;
    QPoint m_grip; ///< From the pointer to the corner that is nearest to it, at the press.
};

#endif // HOSTFRAME_H
