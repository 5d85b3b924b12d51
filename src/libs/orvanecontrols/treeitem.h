#ifndef TREEITEM_H
#define TREEITEM_H

#include "orvanecontrolsglobal.h"

#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QWidget>

class QLabel;
class QVBoxLayout;

/**
 * A row of a tree of cabinet models: the model's name above its size, as in "500x500".
 *
 * The name is light grey and the size a darker grey, until a style sheet says otherwise. The row
 * carries an object of the host's.
 */
class ORVANECONTROLS_EXPORT TreeItem : public QWidget
{
    Q_OBJECT

public:
    /// Builds a row for the model \a name of \a size in pixels of the wall, owned by \a parent. Any
    /// size is shown as it is.
    TreeItem(QString name, QSize size, QWidget *parent = nullptr);

    /// Sets the style sheet of the name. A null text is ignored; an empty one clears the sheet.
    void setTilteStyleSheet(QString sheet);
    /// Sets the style sheet of the size. A null text is ignored; an empty one clears the sheet.
    void setContentStyleSheet(QString sheet);

    /// The name that is shown. \see setCabinetName()
    QString getCabinetName() const;
    /// Sets the name that is shown. \see getCabinetName()
    void setCabinetName(QString name);
    /// The size that the row was built with.
    QSize getCabinetSize() const;

    /// The host's object, null until set and once it is deleted. \see setObject()
    QObject *getObject() const;
    /// Attaches an object of the host's, which goes on owning it; null for none. \see getObject()
    void setObject(QObject *object);

protected:
    /// Does nothing.
    void resizeEvent(QResizeEvent *event) override;

private:
    QLabel *m_titleLabel = nullptr;
    QLabel *m_sizeLabel = nullptr;
    QVBoxLayout *m_layout = nullptr;
    QSize m_size;
    QPointer<QObject> m_object;
};

#endif // TREEITEM_H
