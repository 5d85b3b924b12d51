#include "librarywidget.h"

#include <QIcon>
#include <QMetaObject>

namespace
{

/// The nearest base class that is Qt's own: Designer and uic treat the widget like one of those.
QString qtBaseOf(const QMetaObject *metaObject)
{
    const QMetaObject *base = metaObject->superClass();
    while (*base->className() != 'Q')
        base = base->superClass();
    return QString::fromLatin1(base->className());
}

/// "checkBoxEx" for CheckBoxEx, "nqTabBar" for NQTabBar.
QString objectNameOf(const QString &className)
{
    int capitals = 0;
    while (capitals < className.size() && className.at(capitals).isUpper())
        ++capitals;
    const int head = qMax(1, capitals - 1);
    return className.left(head).toLower() + className.mid(head);
}

} // namespace

LibraryWidget::LibraryWidget(const WidgetRow &row)
    : m_row(row)
{
}

QString LibraryWidget::name() const
{
    return QString::fromLatin1(m_row.metaObject->className());
}

QString LibraryWidget::group() const
{
    return m_row.group;
}

QString LibraryWidget::toolTip() const
{
    return m_row.purpose;
}

QString LibraryWidget::whatsThis() const
{
    QString text = QStringLiteral("<h3>%1</h3><p>%2.</p>").arg(name(), m_row.purpose);
    if (!m_row.filling.isEmpty())
        text += QStringLiteral("<p>%1.</p>").arg(m_row.filling);
    if (!m_row.builtAs.isEmpty()) {
        text += QStringLiteral("<p>Forms are shown with <code>%1</code>. Code made by uic passes "
                               "the parent alone: promote the widget to a class of your own whose "
                               "constructor takes no more.</p>")
                    .arg(m_row.builtAs.toHtmlEscaped());
    }
    return text;
}

QString LibraryWidget::includeFile() const
{
    return QStringLiteral("<orvanecontrols/%1.h>").arg(name().toLower());
}

QIcon LibraryWidget::icon() const
{
    const QString file = QStringLiteral(":/orvanecontrols/designer/%1%2.png");
    QIcon icon(file.arg(name().toLower(), QString()));
    icon.addFile(file.arg(name().toLower(), QStringLiteral("-32")));
    return icon;
}

bool LibraryWidget::isContainer() const
{
    return m_row.isContainer;
}

QWidget *LibraryWidget::createWidget(QWidget *parent)
{
    return m_row.create(parent);
}

QString LibraryWidget::domXml() const
{
    return QStringLiteral("<ui language=\"c++\" displayname=\"%1\">"
                          "<widget class=\"%1\" name=\"%2\">"
                          "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                          "<width>%3</width><height>%4</height></rect></property>"
                          "%5</widget>"
                          "<customwidgets><customwidget>"
                          "<class>%1</class><extends>%6</extends>"
                          "</customwidget></customwidgets></ui>")
        .arg(name(), objectNameOf(name()), QString::number(m_row.size.width()),
             QString::number(m_row.size.height()), m_row.content, qtBaseOf(m_row.metaObject));
}
