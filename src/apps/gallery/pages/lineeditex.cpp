#include "page.h"

#include <lineeditex.h>

namespace
{

LineEditEx *makeEdit(QWidget *parent, LineEditType type, int width,
                     const QString &text = QStringLiteral("Screen 1"))
{
    auto *edit = new LineEditEx(parent, type);
    edit->setFixedSize(width, theme::controlHeight);
    edit->setText(text);
    edit->setPlaceholderText("Name");
    return edit;
}

} // namespace

GALLERY_PAGE(LineEditEx)
{
    page.setPurpose("A line edit, framed or with a line below, that can warn at the text cursor "
                    "about characters that file names must not have.");

    page.setStates(
        {{"Normal", State::Normal}, {"Focus", State::Focus}, {"Disabled", State::Disabled}});
    page.look("Framed", [](QWidget *parent) { return makeEdit(parent, NormalLineEdit, 136); });
    page.look("Underlined",
              [](QWidget *parent) { return makeEdit(parent, UnderlineLineEdit, 136); });
    page.look("Placeholder",
              [](QWidget *parent) { return makeEdit(parent, NormalLineEdit, 136, ""); });

    for (LineEditType type : {NormalLineEdit, UnderlineLineEdit}) {
        LineEditEx *edit = page.tryIt(makeEdit(nullptr, type, 200),
                                      type == NormalLineEdit ? "Framed" : "Underlined");
        edit->setStrToolTips("A file name has none of / \\ : < | \" * > ?");
        page.event(edit, "textEdited", &QLineEdit::textEdited);
        page.event(edit, "returnPressed", &QLineEdit::returnPressed);
        page.event(edit, "editingFinished", &QLineEdit::editingFinished);
    }

    using W = LineEditEx;
    page.text<W>("setStrToolTips",
                 Page::withoutGetter(QString("A file name has none of / \\ : < | \" * > ?")),
                 &W::setStrToolTips);
    page.flag<W>("setEnabled", &W::isEnabled, &W::setEnabled);
    page.flag<W>("setBFouceOut", &W::bFouceOut, &W::setBFouceOut);
    page.number<W>("setBorderWidth", &W::borderWidth, &W::setBorderWidth, 0, 6);
    page.color<W>("setBorderColor", &W::borderColor, &W::setBorderColor);
    page.color<W>("setBackgroundColor", &W::backgroundColor, &W::setBackgroundColor);
    page.action<W>("initStyle()", &W::initStyle);
}
