#ifndef ORVANE_INTERNAL_PUSHBUTTONWITHIMGEX_H
#define ORVANE_INTERNAL_PUSHBUTTONWITHIMGEX_H

#include <QPushButton>
#include <QString>

/**
 * A button that is nothing but a picture, stretched over its whole rectangle. While it is held down
 * it shows its second picture, if it has one. A controller board makes them for its strip and its
 * popup.
 */
class PushButtonWithImgEx : public QPushButton
{
    Q_OBJECT

public:
    /// Builds a button with two pictures by their paths, owned by \a parent.
    PushButtonWithImgEx(QString firstImagePath, QString secondImagePath, QWidget *parent);

    /// The path of the picture.
    QString firstImagePath() const;
    /// The path of the picture of the button that is held down.
    QString secondImagePath() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setAlternate(bool alternate);

    QString m_firstImagePath;
    QString m_secondImagePath;
    bool m_isAlternate = false;
};

#endif // ORVANE_INTERNAL_PUSHBUTTONWITHIMGEX_H
