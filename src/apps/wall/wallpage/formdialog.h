#ifndef WALL_WALLPAGE_FORMDIALOG_H
#define WALL_WALLPAGE_FORMDIALOG_H

#include <QDialog>

class QGridLayout;

namespace wall
{

/// A small modal form: named fields, a button that accepts and one that cancels.
class FormDialog : public QDialog
{
    Q_OBJECT

public:
    FormDialog(const QString &title, const QString &acceptText, QWidget *parent);

protected:
    /// Puts \a field, which the dialog owns from now on, below the others.
    void addRow(const QString &caption, QWidget *field);

private:
    QGridLayout *m_rows;
};

} // namespace wall

#endif // WALL_WALLPAGE_FORMDIALOG_H
