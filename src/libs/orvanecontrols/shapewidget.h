#ifndef SHAPEWIDGET_H
#define SHAPEWIDGET_H

#include "orvanecontrolsglobal.h"

#include <QWidget>

#include <memory>

class QPoint;
class QToolButton;

namespace Ui
{
class ShapeWidget;
}

/**
 * The panel that drops down from a controller board: a small arrow that points up at the button it
 * belongs to, and under it a bordered scroll area for one widget.
 */
class ORVANECONTROLS_EXPORT ShapeWidget : public QWidget
{
    Q_OBJECT

public:
    /// Builds an empty panel, owned by \a parent.
    explicit ShapeWidget(QWidget *parent = nullptr);
    ~ShapeWidget() override;

    /// Creates the arrow and takes its size as triggleBtnWidth() and triggleBtnHeight(). The
    /// constructor calls it; another call lays a new one over it.
    void createTriggleBtn();
    /// Applies the scroll area's sheet. The constructor calls it.
    void initStyle();
    /// Gives both scroll bars the library's look. The constructor calls it.
    void setScrollBarStyle();

    /// Shows \a w, which the panel owns from now on, at the size that it has now, in place of the
    /// widget so far, which is deleted. \a w becomes named "shapeWidgetContent". Add a widget again
    /// after it changed its size, so that the panel asks for the room it needs. A null pointer is
    /// ignored.
    void addWidget(QWidget *w);
    /// Moves the arrow to \a pos, in pixels inside the strip above the scroll area. Until the first
    /// call it stands where the layout puts it.
    void setTriggleBtnPos(QPoint pos);

    /// Sets the recorded width of the arrow in pixels, any number; nothing is resized.
    /// \see triggleBtnWidth()
    void setTriggleBtnWidth(int width);
    /// The recorded width of the arrow, 20 at first. \see setTriggleBtnWidth()
    int triggleBtnWidth() const;
    /// Sets the recorded height of the arrow in pixels, any number; nothing is resized.
    /// \see triggleBtnHeight()
    void setTriggleBtnHeight(int height);
    /// The recorded height of the arrow, 8 at first. \see setTriggleBtnHeight()
    int triggleBtnHeight() const;

private:
    std::unique_ptr<Ui::ShapeWidget> m_ui;
    QToolButton *m_triggleButton = nullptr;
    int m_triggleBtnWidth{};
    int m_triggleBtnHeight{};
};

#endif // SHAPEWIDGET_H
