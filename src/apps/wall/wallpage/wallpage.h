#ifndef WALL_WALLPAGE_WALLPAGE_H
#define WALL_WALLPAGE_WALLPAGE_H

#include "model/values.h"

#include <QWidget>

class LabelEx;
class SliderExMouse;

namespace wall
{

class Document;
class ModelBoard;
class PropertyPanel;
class Selection;
class SenderPanel;

/// The page on which a wall is laid out: senders at the left, the view of the wall in the middle
/// with the models and the zoom below it, properties at the right.
///
/// The page knows nothing of what the view can do. It says what is wanted of it, and shows the zoom
/// that it is told.
class WallPage : public QWidget
{
    Q_OBJECT

public:
    /// The zoom, in pixels of the screen for a pixel of the wall, at the ends of the slider. Others
    /// are shown as the nearest of them.
    static constexpr double leastZoom = 0.01;
    static constexpr double greatestZoom = 8.0;

    /// \a view shows the wall; the page owns it from now on.
    WallPage(Document *document, Selection *selection, QWidget *view, QWidget *parent = nullptr);

    SenderPanel *senderPanel() const;
    ModelBoard *modelBoard() const;
    PropertyPanel *propertyPanel() const;
    QWidget *view() const;

public Q_SLOTS:
    /// Shows the zoom that the view has.
    void showZoom(double zoom);

Q_SIGNALS:
    /// One cabinet of \a modelId is to be placed from \a port.
    void placeRequested(const wall::PortRef &port, const QString &modelId);
    /// A row of \a count cabinets of \a modelId is to be placed from \a port.
    void placeRowRequested(const wall::PortRef &port, const QString &modelId, int count);
    /// The view is to have this zoom, a greater or a smaller one, or one that shows the whole wall.
    void zoomRequested(double zoom);
    void zoomInRequested();
    void zoomOutRequested();
    void zoomToFitRequested();

private:
    QWidget *createZoomRow();
    void requestZoom(int position);

    SenderPanel *m_senderPanel;
    ModelBoard *m_modelBoard;
    PropertyPanel *m_propertyPanel;
    QWidget *m_view;
    SliderExMouse *m_zoomSlider = nullptr;
    LabelEx *m_zoomText = nullptr;
};

} // namespace wall

#endif // WALL_WALLPAGE_WALLPAGE_H
