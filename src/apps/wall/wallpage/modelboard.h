#ifndef WALL_WALLPAGE_MODELBOARD_H
#define WALL_WALLPAGE_MODELBOARD_H

#include "model/values.h"

#include <QPointer>
#include <QStringList>
#include <QVector>
#include <QWidget>

class LabelEx;
class ToolButtonEx;
class WidgetControllBoard;

namespace wall
{

class CabinetClicks;
class Document;
class Selection;

/// The project's cabinet models in a strip: a click asks for one of a model to be placed from the
/// port that is worked on. The first button in the strip hangs more cabinets on that port, the
/// second one asks for a whole row to be placed. A model of which none is left on the port is
/// disabled; while no port is chosen, a click says so.
class ModelBoard : public QWidget
{
    Q_OBJECT

public:
    ModelBoard(Document *document, Selection *selection, QWidget *parent = nullptr);

    /// The buttons of the models, in the project's order.
    QVector<ToolButtonEx *> modelButtons() const;

public Q_SLOTS:
    /// Asks how many cabinets of which model to hang on the port.
    void addStock();
    /// Asks for the model and the length of a row.
    void requestRow();

Q_SIGNALS:
    /// One cabinet of \a modelId is to be placed from \a port.
    void placeRequested(const wall::PortRef &port, const QString &modelId);
    /// A row of \a count cabinets of \a modelId, as many as are left at most, is to be placed from
    /// \a port.
    void placeRowRequested(const wall::PortRef &port, const QString &modelId, int count);

private:
    void build();
    void followProject();
    void rebuild();
    void fillStrip(const QList<QWidget *> &buttons);
    void dressStrip();
    void updateModel(const QString &modelId);
    void renewCopies();
    void showAvailability();
    void showPort();
    void requestModel(const QString &modelId);
    bool hasPort(const QString &purpose);
    QString portText() const;

    Document *m_document;
    Selection *m_selection;
    CabinetClicks *m_clicks;
    WidgetControllBoard *m_board = nullptr;
    LabelEx *m_portName = nullptr;
    LabelEx *m_portCount = nullptr;
    QStringList m_modelIds;
    QVector<QPointer<ToolButtonEx>> m_buttons;
    bool m_areCopiesOld = false;
};

} // namespace wall

#endif // WALL_WALLPAGE_MODELBOARD_H
