// The smallest host: one window with a check box, then the end.
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
    QTimer::singleShot(0, &application, &QApplication::quit);
    application.exec();
    const bool imagesAreThere =
        !QImage(":/Resource/Images/globalResource/checkbox/checkbox_normal.png").isNull();
    return imagesAreThere ? 0 : 1;
}
