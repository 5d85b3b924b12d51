#ifndef GALLERY_NAVIGATION_H
#define GALLERY_NAVIGATION_H

#include <QWidget>

class QListWidget;
class TextField;

/// The list of pages by group, with a filter above it.
class Navigation : public QWidget
{
    Q_OBJECT

public:
    explicit Navigation(QWidget *parent = nullptr);

    void setCurrentPage(const QString &name);
    /// Goes to the next (1) or the previous (-1) page that the filter leaves.
    void step(int direction);
    void focusFilter();
    QWidget *list() const;

Q_SIGNALS:
    void pageChosen(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void applyFilter(const QString &text);

    TextField *m_filter;
    QListWidget *m_list;
};

#endif // GALLERY_NAVIGATION_H
