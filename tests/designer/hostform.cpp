// A source of its own: the library's customwidget.h and Qt's for plugins have the same guard.
#include "hostform.h"

#include "ui_hostform.h"

HostForm::HostForm(QWidget *parent)
    : QWidget(parent)
{
    Ui::HostForm().setupUi(this);
}
