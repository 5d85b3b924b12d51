#include "formdialog.h"

#include "parts.h"

#include <theme.h>

#include <QGridLayout>
#include <QLabel>

namespace wall
{

namespace
{

constexpr int fieldWidth = 220;
constexpr int buttonWidth = 80;

} // namespace

FormDialog::FormDialog(const QString &title, const QString &acceptText, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , m_rows(new QGridLayout)
{
    setWindowTitle(title);

    auto *accept = theme::makeButton(acceptText, ActivatedBtn, this, buttonWidth);
    accept->setDefault(true);
    connect(accept, &PushButtonEx::clicked, this, &QDialog::accept);
    auto *cancel = theme::makeButton(QStringLiteral("Cancel"), NoActivatedBtn, this, buttonWidth);
    cancel->setAutoDefault(false);
    connect(cancel, &PushButtonEx::clicked, this, &QDialog::reject);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(theme::gap);
    buttons->addStretch();
    buttons->addWidget(accept);
    buttons->addWidget(cancel);
    m_rows->setSpacing(theme::gap);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    column->setSpacing(2 * theme::gap);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addLayout(m_rows);
    column->addLayout(buttons);
}

void FormDialog::addRow(const QString &caption, QWidget *field)
{
    const int row = m_rows->rowCount();
    QLabel *label = theme::makeQuietLabel(caption, this);
    label->setBuddy(field);
    field->setFixedSize(fieldWidth, theme::controlHeight);
    field->setAccessibleName(caption);
    m_rows->addWidget(label, row, 0);
    m_rows->addWidget(field, row, 1);
    // The first field has the focus, and Tab goes down the form and on to the buttons.
    QWidget *above = row > 1 ? m_rows->itemAtPosition(row - 1, 1)->widget() : nullptr;
    if (above)
        setTabOrder(above, field);
    else
        field->setFocus();
}

} // namespace wall
