#ifndef LISTWIDGETTITLE_H
#define LISTWIDGETTITLE_H

#include "orvanecontrolsglobal.h"

#include <QString>
#include <QWidget>

class QLabel;
class QToolButton;

/**
 * The header of a list, 32 pixels high: a title, a refresh button and a drop-down button that folds
 * and unfolds the list.
 *
 * The title only reports the clicks; the host, or the list widget that it stands in, folds the list
 * and calls changeDropDownBtn(). There is a settings button too, hidden at first and outside the
 * layout. The title may be deleted in all of its signals.
 */
class ORVANECONTROLS_EXPORT ListWidgetTitle : public QWidget
{
    Q_OBJECT

public:
    /// Builds the header with the text \a title, owned by \a parent. The list counts as shown.
    explicit ListWidgetTitle(QString title, QWidget *parent = nullptr);

    /// Sets the text.
    void setTitle(QString title);
    /// Gives the drop-down button the image of a list that is shown if \a isShown, else the image
    /// of a folded one. What the next click reports does not change.
    void changeDropDownBtn(bool isShown);
    /// Hides the refresh button. \see setIconVisible()
    void hideRefIcon();
    /// Shows or hides the settings, the refresh and the drop-down button. The settings button then
    /// stands in the top left corner, over the title; in the top right one, over the title too,
    /// when the layout is from right to left.
    void setIconVisible(bool visible);

Q_SIGNALS:
    /// The refresh button was clicked.
    void signal_Refresh();
    /// The settings button was clicked.
    void signal_Setting();
    /// The drop-down button was clicked; the list is to be shown or hidden, as \a isShown says. It
    /// is false for the first click, and the other one each time after that.
    void signal_HideShow(bool isShown);

public Q_SLOTS:
    /// What a click on the drop-down button does: emits signal_HideShow().
    void slot_HideClicked();

protected:
    /// Keeps the settings button in its corner when the direction of the layout changes.
    void changeEvent(QEvent *event) override;
    /// Keeps the settings button in its corner.
    void resizeEvent(QResizeEvent *event) override;

private:
    void initLayout();
    QPoint cornerOfSettings() const;

    QLabel *m_titleLabel = nullptr;
    QToolButton *m_settingsButton = nullptr;
    QToolButton *m_refreshButton = nullptr;
    QToolButton *m_dropDownButton = nullptr;
    bool m_isListShown = true;
};

#endif // LISTWIDGETTITLE_H
