#ifndef WALL_MODELSPAGE_H
#define WALL_MODELSPAGE_H

#include <QWidget>

class QGridLayout;
class QLabel;
class QTimer;

namespace wall
{

class CabinetPreview;
class Document;
class ModelFields;
class ModelTree;
class Project;
struct Totals;

/**
 * The cabinet models of the project: the tree of their families, the properties of the chosen one,
 * a preview to scale, and what the wall adds up to, beside what its checked models add up to.
 *
 * Unit, brightness and grid of the preview are matters of this view: they are neither saved nor
 * undone.
 */
class ModelsPage : public QWidget
{
    Q_OBJECT

public:
    /// \a document stays the caller's and lives at least as long as the page.
    explicit ModelsPage(Document *document, QWidget *parent = nullptr);

private:
    /// One line of the table of totals.
    struct TotalsRow {
        QLabel *cabinets;
        QLabel *pixels;
        QLabel *weight;
        QLabel *power;
    };

    QWidget *makeColumn(const QString &heading, QWidget *content);
    QWidget *makePreview();
    QWidget *makePreviewControls();
    QWidget *makeTotals();
    TotalsRow addTotalsRow(QGridLayout *layout, const QString &name, const QString &objectName);
    static void showTotals(const TotalsRow &row, const Totals &totals);
    void updateTotals();
    void updatePreview();

    Document *m_document;
    Project *m_project;
    ModelTree *m_tree;
    ModelFields *m_fields;
    CabinetPreview *m_preview;
    TotalsRow m_wallRow;
    TotalsRow m_checkedRow;
    QTimer *m_totalsTimer;
};

} // namespace wall

#endif // WALL_MODELSPAGE_H
