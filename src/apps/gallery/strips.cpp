#include "strips.h"

#include "cabinets.h"

#include <toolbuttonex.h>
#include <widgetcontent.h>

#include <QString>

namespace
{

/// The rules of a button with \a property: its picture in each state.
QString pictureRules(const char *property, const char *picture)
{
    const QString selector = QStringLiteral("ToolButtonEx[%1=\"true\"]").arg(property);
    const QString path =
        QStringLiteral(":/Resource/Images/globalResource/%1_%2.png").arg(picture, "%1");
    const auto rule = [&](const char *state, const char *suffix) {
        return selector + state + "{border-image:url(" + path.arg(suffix) + ");}";
    };
    return rule("", "normal") + rule(":hover", "hover") + rule(":pressed", "pressed")
        + rule(":disabled", "disable");
}

} // namespace

namespace strips
{

QWidget *makeHost(QWidget *parent)
{
    auto *host = new QWidget(parent);
    host->setStyleSheet(pictureRules("isCabinateWidgetLeftBtn", "arrow/btn_L")
                        + pictureRules("isCabinateWidgetRightBtn", "arrow/btn_R")
                        + pictureRules("isAddRowCabnicateBtn", "addCabinetRow/row"));
    return host;
}

QList<QWidget *> makeModels(int count, QWidget *parent)
{
    QList<QWidget *> models;
    for (const StructCabinet &record : cabinets::some(count))
        models.append(cabinets::makeModel(record, parent));
    return models;
}

QList<QWidget *> makeControllers(int count, QWidget *parent)
{
    QList<QWidget *> controllers;
    for (int i = 0; i < count; ++i) {
        auto *button = new ToolButtonEx(parent, DefaultType, QString(), QString());
        button->setFixedSize(40, 40);
        button->setToolTip(QStringLiteral("Controller %1").arg(i + 1));
        button->setStyleSheet(
            QStringLiteral(
                "QToolButton{border-image:url(:/Resource/Images/globalResource/drawer/%1.png);}"
                "QToolButton:hover{background:rgb(80,80,80);}"
                "QToolButton:pressed{background:rgb(66,145,240);}")
                .arg(i % 3 == 2 ? "coaxial" : "netport"));
        controllers.append(button);
    }
    return controllers;
}

WidgetContent *makeRow(int count, QWidget *parent)
{
    auto *row = new WidgetContent(parent);
    row->setLsWidget(makeModels(count, row));
    return row;
}

} // namespace strips
