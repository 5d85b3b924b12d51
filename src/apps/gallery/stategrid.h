#ifndef GALLERY_STATEGRID_H
#define GALLERY_STATEGRID_H

#include "sample.h"

#include <QList>
#include <QWidget>

class QGridLayout;

/// The table of a page: a row for each look, a column for each state. One stop of the Tab key; the
/// arrow keys go from sample to sample.
class StateGrid : public QWidget
{
    Q_OBJECT

public:
    explicit StateGrid(const QList<StateColumn> &columns, QWidget *parent = nullptr);

    /// Adds a row, with one sample of \a make for each column, and returns its frames.
    QList<SampleFrame *> addLook(const QString &title,
                                 const std::function<Sample(QWidget *parent)> &make);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeTabStop(SampleFrame *frame);

    QGridLayout *m_layout;
    QList<StateColumn> m_columns;
    QList<QList<SampleFrame *>> m_rows;
};

#endif // GALLERY_STATEGRID_H
