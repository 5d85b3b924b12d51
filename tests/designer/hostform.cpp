#include "hostform.h"

#include "ui_hostform.h"

HostForm::HostForm(QWidget *parent)
    : QWidget(parent)
{
    Ui::HostForm().setupUi(this);
}
