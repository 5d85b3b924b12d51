#ifndef GALLERY_SHEETPANE_H
#define GALLERY_SHEETPANE_H

#include <QPointer>
#include <QWidget>

class PushButtonEx;
class QLabel;
class QPlainTextEdit;

/// Shows the style sheet of the selected sample, one rule a line, and copies its exact text.
class SheetPane : public QWidget
{
    Q_OBJECT

public:
    explicit SheetPane(QWidget *parent = nullptr);

    /// Shows the sheet of \a styled, which is what \a title says; nothing when it is null.
    void showSheet(QWidget *styled, const QString &title);

    /// \a sheet with each rule on a line of its own.
    static QString oneRuleALine(const QString &sheet);

private:
    QLabel *m_subject;
    QPlainTextEdit *m_text;
    PushButtonEx *m_copyButton;
    QPointer<QWidget> m_styled;
    QString m_sheet;
};

#endif // GALLERY_SHEETPANE_H
