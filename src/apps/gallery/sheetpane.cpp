#include "sheetpane.h"

#include "controls.h"
#include "theme.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSyntaxHighlighter>
#include <QVBoxLayout>

namespace
{

/// Selectors in full, declarations quiet: the eye finds the rule first.
class SheetHighlighter : public QSyntaxHighlighter
{
public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

protected:
    void highlightBlock(const QString &text) override
    {
        QTextCharFormat quiet;
        quiet.setForeground(theme::quietText);
        QTextCharFormat selector;
        selector.setForeground(QColor(Qt::white));
        const int brace = text.indexOf('{');
        if (brace > 0)
            setFormat(0, brace, selector);
        setFormat(qMax(0, brace), text.size() - qMax(0, brace), quiet);
    }
};

} // namespace

SheetPane::SheetPane(QWidget *parent)
    : QWidget(parent)
    , m_subject(new QLabel(this))
    , m_text(new QPlainTextEdit(this))
    , m_copyButton(makeButton("&Copy", NoActivatedBtn, this))
{
    auto *heading = new QLabel("Style sheet in force", this);
    heading->setFont(theme::headingFont());
    QPalette quiet = m_subject->palette();
    quiet.setColor(QPalette::WindowText, theme::quietText);
    m_subject->setPalette(quiet);
    m_copyButton->setToolTip("Copies the exact text, as the widget has it");

    m_text->setReadOnly(true);
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->setFont(theme::codeFont());
    m_text->document()->setDocumentMargin(theme::gap);
    m_text->setTabChangesFocus(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setAccessibleName("Style sheet in force");
    theme::styleScrollBars(m_text);
    new SheetHighlighter(m_text->document());

    auto *header = new QHBoxLayout;
    header->setSpacing(theme::gap);
    header->addWidget(heading);
    header->addWidget(m_subject, 1);
    header->addWidget(m_copyButton);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(theme::margin, theme::gap, theme::margin, theme::margin);
    layout->setSpacing(theme::gap);
    layout->addLayout(header);
    layout->addWidget(m_text);

    connect(m_copyButton, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(m_sheet); });
}

void SheetPane::showSheet(QWidget *styled, const QString &title)
{
    const QString sheet = styled ? styled->styleSheet() : QString();
    m_subject->setText(title);
    m_copyButton->setEnabled(!sheet.isEmpty());
    if (sheet == m_sheet && !m_text->document()->isEmpty())
        return;
    m_sheet = sheet;
    const int scrolledTo = m_text->verticalScrollBar()->value();
    if (!styled)
        m_text->setPlainText("This page has no styled widget.");
    else if (sheet.isEmpty())
        m_text->setPlainText("The widget has no sheet of its own.");
    else
        m_text->setPlainText(oneRuleALine(sheet));
    // A setter changes some values of the text that is being read.
    if (styled == m_styled)
        m_text->verticalScrollBar()->setValue(scrolledTo);
    m_styled = styled;
}

QString SheetPane::oneRuleALine(const QString &sheet)
{
    // A sheet of declarations alone has no rules; it gets a line for each declaration.
    QString text = sheet;
    if (!text.contains('{'))
        return text.replace(QRegularExpression(";(?=.)"), ";\n");
    return text.replace(QRegularExpression("\\}(?=.)"), "}\n");
}
