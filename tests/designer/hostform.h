#ifndef ORVANE_TESTS_HOSTFORM_H
#define ORVANE_TESTS_HOSTFORM_H

#include <QWidget>

/// A host's form whose code uic makes of hostform.ui.
class HostForm : public QWidget
{
    Q_OBJECT

public:
    explicit HostForm(QWidget *parent = nullptr);
};

#endif // ORVANE_TESTS_HOSTFORM_H
