#ifndef TWIN_H
#define TWIN_H

#include <memory>

class QWidget;

/// What a widget of the library consists of, to be built from Qt's own widgets alone: the same tree
/// of the Qt classes that its parts are or derive from, with the same names, properties, layouts,
/// items and sheets, each set once.
class Twin
{
public:
    enum class Sheets {
        Same, ///< Each part has the sheet that the library gave it.
        None, ///< Stock Qt.
    };

    /// Reads off \a model, which has not been shown yet.
    explicit Twin(const QWidget &model);
    ~Twin();

    QWidget *build(QWidget *parent, Sheets sheets) const;

    struct Part;

private:
    std::unique_ptr<Part> m_root;
};

#endif // TWIN_H
