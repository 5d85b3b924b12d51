#ifndef GALLERY_PAGE_H
#define GALLERY_PAGE_H

#include "controls.h"
#include "pagelist.h"
#include "sample.h"
#include "theme.h"

#include <QColor>
#include <QList>
#include <QPointer>
#include <QSize>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <type_traits>

class QGridLayout;
class QScrollArea;
class QVBoxLayout;
class StateGrid;

/// Opens the definition of a page: GALLERY_PAGE(CheckBoxEx) { page.setPurpose("..."); ... }
#define GALLERY_PAGE(Name) void build##Name##Page(Page &page)

/// See Page::withoutGetter().
template <class Value> struct Unread {
    Value value;
    Value operator()(const void *) const { return value; }
};
template <class Get> struct IsUnread : std::false_type {
};
template <class Value> struct IsUnread<Unread<Value>> : std::true_type {
};

/// Which samples of a page a control acts on.
enum class Reach {
    AllSamples, ///< Every sample of the class, so that all states are seen with the new value.
    TryIt ///< Only the one that people try.
};

/**
 * One page of the gallery. A page's file describes it with the functions under "What a page says",
 * from top to bottom; everything else (layout, selection, undoing, events, sheets) is done here.
 */
class Page : public QWidget
{
    Q_OBJECT

public:
    explicit Page(const PageInfo &info, QWidget *parent = nullptr);

    const QString &name() const { return m_info.name; }
    /// The selected sample; null on a page without samples.
    SampleFrame *selected() const { return m_selected; }
    /// The height that the page needs to be seen without scrolling.
    int fullHeight() const;
    /// Where the keyboard goes to on this page: the samples, the controls.
    QList<QWidget *> regions() const;

    // --- What a page says -----------------------------------------------------------------------

    /// One sentence: what the widget is for.
    void setPurpose(const QString &sentence);

    /// Begins a table of looks and states with these columns; the look()s below are its rows.
    void setStates(const QList<StateColumn> &columns,
                   const QString &title = QStringLiteral("Looks and states"));
    /// A row of the table. \a make builds a new widget each time it is called.
    void look(const QString &title, const std::function<Sample(QWidget *parent)> &make);

    /// A free part of the page, below the ones before it.
    void card(const QString &title, QWidget *content);

    /// Puts a widget onto the stage of "Try it" and returns it.
    template <class W> W *tryIt(W *widget, const QString &title = QString())
    {
        addToStage(Sample(widget), title);
        return widget;
    }
    void tryIt(const Sample &sample, const QString &title = QString())
    {
        addToStage(sample, title);
    }
    /// The same for a widget that is too large for the panel: it stands in a card of its own, with
    /// \a beside at its right.
    template <class W> W *tryHere(const QString &title, W *widget, QWidget *beside = nullptr)
    {
        addCardToTry(title, Sample(widget), beside);
        return widget;
    }
    void tryHere(const QString &title, const Sample &sample, QWidget *beside = nullptr)
    {
        addCardToTry(title, sample, beside);
    }
    /// A control for each kind of setter. \a get and \a set are members of W, or functions that
    /// take a W* first; \a name is the setter's name as a host writes it.
    template <class W, class Get, class Set>
    void color(const QString &name, Get get, Set set, Reach reach = Reach::AllSamples)
    {
        addControl<W>(name, new ColorButton(this), get, set, reach);
    }
    template <class W, class Get, class Set>
    void number(const QString &name, Get get, Set set, int minimum, int maximum,
                Reach reach = Reach::AllSamples)
    {
        addControl<W>(name, new NumberField(minimum, maximum, this), get, set, reach);
    }
    template <class W, class Get, class Set>
    void flag(const QString &name, Get get, Set set, Reach reach = Reach::TryIt)
    {
        addControl<W>(name, new FlagBox(this), get, set, reach);
    }
    template <class W, class Get, class Set>
    void text(const QString &name, Get get, Set set, Reach reach = Reach::TryIt)
    {
        addControl<W>(name, new TextField(this), get, set, reach);
    }
    /// \a get and \a set deal in the index of the choice.
    template <class W, class Get, class Set>
    void choice(const QString &name, const QStringList &choices, Get get, Set set,
                Reach reach = Reach::TryIt)
    {
        addControl<W>(name, new ChoiceBox(choices, this), get, set, reach);
    }
    /// A button that calls a function without arguments. The controls show the new values after it.
    template <class W, class Call>
    void action(const QString &name, Call call, Reach reach = Reach::AllSamples)
    {
        addAction(name, [this, call, reach] {
            for (W *target : targets<W>(reach))
                std::invoke(call, target);
            applied(Refresh::Everything);
        });
    }

    /// Lists a signal of a tried widget as it comes.
    template <class Sender, class Class, class... Arguments>
    void event(Sender *sender, const QString &name, void (Class::*signal)(Arguments...))
    {
        connect(sender, signal, this, [this, name](Arguments... arguments) {
            report(name, QStringList{eventText(arguments)...});
        });
    }

    /// Stands for the getter of a value that the class does not give back: its default.
    template <class Value> static Unread<Value> withoutGetter(Value value) { return {value}; }

    // --------------------------------------------------------------------------------------------

Q_SIGNALS:
    void selectionChanged();
    /// The sheet of the selected sample may have changed.
    void sheetChanged();
    void eventReported(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addToStage(const Sample &sample, const QString &title);
    void addCardToTry(const QString &title, const Sample &sample, QWidget *beside);
    void addRow(const QString &name, QWidget *control);
    void addAction(const QString &name, const std::function<void()> &call);
    void addFrame(SampleFrame *frame);
    void select(SampleFrame *frame);
    /// What the controls read back: after a setter all values that have a getter, after a reset
    /// the defaults of the others too.
    enum class Refresh { Readable, Everything };
    struct Refresher {
        std::function<void()> refresh;
        bool isUnread;
    };

    void applied(Refresh refresh = Refresh::Readable);
    void report(const QString &name, const QStringList &arguments);

    template <class W> QList<W *> targets(Reach reach) const
    {
        QList<W *> found;
        for (const SampleFrame *frame : m_frames) {
            if (reach == Reach::TryIt && !frame->isLive())
                continue;
            if (auto *target = qobject_cast<W *>(frame->sample().target.data()))
                found.append(target);
        }
        return found;
    }

    template <class W, class Control, class Get, class Set>
    void addControl(const QString &name, Control *control, Get get, Set set, Reach reach)
    {
        addRow(name, control);
        const auto read = [this, control, get] {
            const QList<W *> tried = targets<W>(Reach::TryIt);
            if (!tried.isEmpty())
                control->showValue(std::invoke(get, tried.first()));
        };
        read();
        m_refreshers.append({read, IsUnread<Get>::value});
        connect(control, &Control::changed, this, [this, set, reach](auto value) {
            for (W *target : targets<W>(reach))
                std::invoke(set, target, value);
            applied();
        });
    }

    PageInfo m_info;
    QWidget *m_content;
    QVBoxLayout *m_contentLayout;
    QScrollArea *m_scrollArea;
    QWidget *m_panel;
    QScrollArea *m_panelScrollArea;
    QVBoxLayout *m_stageLayout;
    QGridLayout *m_controlsLayout;
    QList<StateGrid *> m_grids;
    QList<SampleFrame *> m_frames;
    QPointer<SampleFrame> m_selected;
    QList<Refresher> m_refreshers;
};

#endif // GALLERY_PAGE_H
