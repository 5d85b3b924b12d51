// The smallest host: a check box and a label, included in either way, then the end.
#include "labelex.h"
#include <orvanecontrols/checkboxex.h>

#include <QApplication>
#include <QImage>
#include <QTimer>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    CheckBoxEx box(nullptr);
    box.setText("Mirror the wall");
    box.setFontColor(QColor(210, 210, 210));
    box.show();
    LabelEx label(nullptr);
    label.setText("Wall");
    label.show();
    QTimer::singleShot(0, &application, &QApplication::quit);
    application.exec();
    const bool imagesAreThere =
        !QImage(":/Resource/Images/globalResource/checkbox/checkbox_normal.png").isNull();
    return imagesAreThere ? 0 : 1;
}
