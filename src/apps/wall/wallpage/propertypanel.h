#ifndef WALL_WALLPAGE_PROPERTYPANEL_H
#define WALL_WALLPAGE_PROPERTYPANEL_H

#include "arrangement.h"

#include <QWidget>

class LabelEx;
class PushButtonEx;
class QLabel;
class QTimer;
class QUndoCommand;

namespace wall
{

class Document;
class NumberField;
class Selection;

/// What the selected cabinets are, and what the whole wall adds up to.
///
/// Where several selected cabinets differ, "---" stands for the number, and "Various" for the text.
/// Each change is one step of the undo stack; steps by arrows and keys join, until another field or
/// another selection is worked on, the field is left, or a second has passed.
class PropertyPanel : public QWidget
{
    Q_OBJECT

public:
    PropertyPanel(Document *document, Selection *selection, QWidget *parent = nullptr);
    ~PropertyPanel() override;

public Q_SLOTS:
    /// Rotates each selected cabinet by \a degrees clockwise.
    void rotateBy(int degrees);
    /// Brings the selected cabinets into order.
    void arrange(wall::Arrangement arrangement);
    /// Removes the selected cabinets from the wall.
    void removeCabinets();

private:
    void build();
    void addProperties(QWidget *content);
    void addCommands(QWidget *content);
    void addTotals(QWidget *content);
    void followFields();
    void followProject();

    void showSoon();
    void showSelection();
    void showTexts(const CabinetIds &ids);
    void showNumbers(const CabinetIds &ids);
    void showTotals();

    void moveTo(Qt::Orientation direction, int coordinate);
    void moveBy(QPoint delta, int gesture);
    void rotateTo(int degrees);
    void rotateEach(int degrees, int gesture);
    void push(QUndoCommand *command);
    int gestureOf(const NumberField *field);
    void endSeries();
    CabinetIds selected() const;

    Document *m_document;
    Selection *m_selection;
    bool m_isShowPending = false;

    // The series of steps that goes on.
    const NumberField *m_seriesField = nullptr;
    int m_seriesGesture = 0;
    QTimer *m_seriesPause = nullptr;
    bool m_isPushing = false;

    QLabel *m_heading = nullptr;
    LabelEx *m_model = nullptr;
    LabelEx *m_port = nullptr;
    LabelEx *m_place = nullptr;
    LabelEx *m_size = nullptr;
    NumberField *m_x = nullptr;
    NumberField *m_y = nullptr;
    NumberField *m_rotation = nullptr;
    QVector<PushButtonEx *> m_commandsForOne; ///< What one selected cabinet is enough for.
    QVector<PushButtonEx *> m_commandsForSeveral;
    LabelEx *m_totalCabinets = nullptr;
    LabelEx *m_totalPixels = nullptr;
    LabelEx *m_totalWeight = nullptr;
    LabelEx *m_totalPower = nullptr;
};

} // namespace wall

#endif // WALL_WALLPAGE_PROPERTYPANEL_H
