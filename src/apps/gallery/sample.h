#ifndef GALLERY_SAMPLE_H
#define GALLERY_SAMPLE_H

#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

/// One widget of a page, as a page's file hands it over.
struct Sample {
    /// What a page has most often: a widget that carries its own sheet and its own setters.
    Sample(QWidget *widget)
        : widget(widget)
        , target(widget)
        , styled(widget)
    {
    }
    /// A widget whose setters, or whose sheet, are those of another object.
    Sample(QWidget *widget, QWidget *target, QWidget *styled)
        : widget(widget)
        , target(target)
        , styled(styled)
    {
    }

    QPointer<QWidget> widget; ///< What is seen.
    QPointer<QWidget> target; ///< What the page's setters act on.
    QPointer<QWidget> styled; ///< What the sheet is on.
};

/// What is done to a widget so that it shows itself in a state.
enum class State { Normal, Hover, Pressed, Focus, Disabled };

/// One column of the state grid.
struct StateColumn {
    QString title;
    State state = State::Normal;
    /// Where the pointer stands on the part; without it near the left end, half way down.
    std::function<QPoint(QWidget *)> pointer = {};
    /// The part of the widget that the pointer is on; without it the widget itself.
    std::function<QWidget *(QWidget *)> part = {};
};

/// A column's part: the first one of that class.
template <class Part> QWidget *firstPart(QWidget *widget)
{
    return widget->findChild<Part *>();
}
/// A column's part: the last one of that class.
template <class Part> QWidget *lastPart(QWidget *widget)
{
    const QList<Part *> parts = widget->findChildren<Part *>();
    return parts.isEmpty() ? nullptr : parts.last();
}

/// The frame around a sample: shows which one is selected and keeps a state sample in its state.
class SampleFrame : public QWidget
{
    Q_OBJECT

public:
    /// A sample that people use.
    SampleFrame(const Sample &sample, const QString &title, QWidget *parent);
    /// A sample that stays in the state of \a column, whatever the pointer does.
    /// \a make builds it with the frame as its parent.
    SampleFrame(const std::function<Sample(QWidget *parent)> &make, const QString &title,
                const StateColumn &column, QWidget *parent);
    ~SampleFrame() override;

    const Sample &sample() const { return m_sample; }
    /// What the sample is, in words.
    const QString &title() const { return m_title; }
    bool isLive() const { return m_live; }

    void setSelected(bool selected);

    /// Brings a state sample into its state (again).
    void force();

Q_SIGNALS:
    void chosen(SampleFrame *frame);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void layOut();
    void pointAt(QWidget *part, QPoint position, bool press);
    void borrowFocus(QWidget *focusWidget);

    Sample m_sample;
    QString m_title;
    StateColumn m_column;
    bool m_live;
    bool m_selected = false;
};

#endif // GALLERY_SAMPLE_H
