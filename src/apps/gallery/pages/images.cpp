#include "page.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QHelpEvent>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>
#include <QToolTip>

#include <algorithm>

namespace
{

const QString root = QStringLiteral(":/Resource/Images/globalResource");

/// How a picture is shown: its size on the screen and the grey that it lies on.
struct Showing {
    QSize size;
    int ground;
};

/// What the manifest of the image set says, by directory and file name.
QHash<QString, Showing> readManifest()
{
    QHash<QString, Showing> showings;
    QFile file(":/gallery/manifest.csv");
    if (!file.open(QIODevice::ReadOnly))
        return showings;
    QStringList columns = QString::fromUtf8(file.readLine()).trimmed().split(',');
    const int fileColumn = columns.indexOf("file");
    const int shownColumn = columns.indexOf("shown");
    const int groundColumn = columns.indexOf("ground");
    while (!file.atEnd()) {
        const QStringList values = QString::fromUtf8(file.readLine()).trimmed().split(',');
        if (values.size() != columns.size())
            continue;
        const QStringList size = values.at(shownColumn).split('x');
        showings.insert(
            values.at(fileColumn),
            {QSize(size.first().toInt(), size.last().toInt()), values.at(groundColumn).toInt()});
    }
    return showings;
}

/// Orders "_2" before "_10", and the small picture before the numbered ones.
QString sortKey(QString fileName)
{
    static const QRegularExpression number("_(\\d)(?=\\.)");
    return fileName.replace(number, "_0\\1");
}

/// The images of one directory in rows of tiles: the picture on its ground and the file name.
class ImageBoard : public QWidget
{
public:
    ImageBoard(const QString &directory, const QHash<QString, Showing> &showings)
    {
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
        const QDir files(root + '/' + directory);
        QStringList fileNames = files.entryList(QDir::Files);
        std::sort(fileNames.begin(), fileNames.end(),
                  [](const QString &a, const QString &b) { return sortKey(a) < sortKey(b); });
        for (const QString &fileName : qAsConst(fileNames)) {
            const QImage image = QImageReader(files.filePath(fileName)).read();
            const Showing showing =
                showings.value(directory + '/' + fileName, {image.size(), theme::ground.value()});
            m_tiles.append({fileName, QPixmap::fromImage(image), showing});
        }
    }

    int imageCount() const { return m_tiles.size(); }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override
    {
        const QVector<QRect> grounds = groundsIn(width);
        return grounds.isEmpty() ? 0 : grounds.last().bottom() + 1 + captionHeight;
    }
    QSize sizeHint() const override { return {minimumTileWidth, minimumTileWidth}; }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::ToolTip)
            return QWidget::event(event);
        auto *help = static_cast<QHelpEvent *>(event);
        const QVector<QRect> grounds = groundsIn(width());
        for (int i = 0; i < m_tiles.size(); ++i) {
            const QRect rect = grounds.at(i).adjusted(0, 0, 0, captionHeight);
            if (!rect.contains(help->pos()))
                continue;
            const Tile &tile = m_tiles.at(i);
            QToolTip::showText(help->globalPos(),
                               QStringLiteral("%1\n%2 × %3 pixels, shown at %4 × %5")
                                   .arg(tile.fileName)
                                   .arg(tile.picture.width())
                                   .arg(tile.picture.height())
                                   .arg(tile.showing.size.width())
                                   .arg(tile.showing.size.height()),
                               this, rect);
        }
        return true;
    }

    void paintEvent(QPaintEvent *event) override
    {
        QPainter painter(this);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        const QVector<QRect> grounds = groundsIn(width());
        for (int i = 0; i < m_tiles.size(); ++i) {
            const QRect ground = grounds.at(i);
            const QRect caption(ground.left(), ground.bottom() + 1, ground.width(), captionHeight);
            if (!ground.united(caption).intersects(event->rect()))
                continue;
            const Tile &tile = m_tiles.at(i);
            painter.setPen(Qt::NoPen);
            const int grey = tile.showing.ground;
            painter.setBrush(QColor(grey, grey, grey));
            painter.drawRoundedRect(ground, theme::cornerRadius, theme::cornerRadius);
            QRect picture(QPoint(), tile.showing.size);
            picture.moveCenter(ground.center());
            painter.drawPixmap(picture, tile.picture);
            painter.setPen(theme::quietText);
            painter.drawText(
                caption, Qt::AlignLeft | Qt::AlignVCenter,
                painter.fontMetrics().elidedText(tile.fileName, Qt::ElideMiddle, caption.width()));
        }
    }

private:
    struct Tile {
        QString fileName;
        QPixmap picture;
        Showing showing;
    };

    static constexpr int minimumTileWidth = 42 * theme::unit;
    static constexpr int captionHeight = 5 * theme::unit;

    /// Where the pictures' grounds are when the board is \a width wide. A row is as high as its
    /// highest picture takes.
    QVector<QRect> groundsIn(int width) const
    {
        const int columns = qMax(1, (width + theme::gap) / (minimumTileWidth + theme::gap));
        const int tileWidth = (width - (columns - 1) * theme::gap) / columns;
        QVector<QRect> grounds;
        int top = 0;
        for (int first = 0; first < m_tiles.size(); first += columns) {
            const int end = qMin(first + columns, m_tiles.size());
            int height = 6 * theme::unit;
            for (int i = first; i < end; ++i)
                height = qMax(height, m_tiles.at(i).showing.size.height());
            height += 4 * theme::unit;
            for (int i = first; i < end; ++i)
                grounds.append({(i - first) * (tileWidth + theme::gap), top, tileWidth, height});
            top += height + captionHeight + theme::gap;
        }
        return grounds;
    }

    QVector<Tile> m_tiles;
};

} // namespace

GALLERY_PAGE(Images)
{
    page.setPurpose("The pictures that the library carries, by directory, each at the size at "
                    "which it is shown and on the ground that it lies on.");
    const QHash<QString, Showing> showings = readManifest();
    for (const QString &directory : QDir(root).entryList(QDir::Dirs, QDir::Name)) {
        auto *board = new ImageBoard(directory, showings);
        page.card(QStringLiteral("%1 (%2)").arg(directory).arg(board->imageCount()), board);
    }
}
