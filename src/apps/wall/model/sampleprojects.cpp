#include "sampleprojects.h"

#include <QStringList>

#include <cmath>

namespace wall
{

namespace
{

// The demo wall.
constexpr int panelLength = 192; ///< Both lengths of a cabinet of the main screen.
constexpr QSize bannerSize(256, 128);
constexpr QSize cubeSize(128, 128);

// Generated walls.
constexpr QSize fieldSize(128, 128);
constexpr int blockColumns = 8;
constexpr int blockRows = 5;
constexpr double wallRatio = 16.0 / 9.0;
constexpr int spareCabinets = 2; ///< On every port.
constexpr int allPercent = 100;

/// Puts a project together block by block: the stock of a port is what its blocks need and more.
class Builder
{
public:
    explicit Builder(ProjectData *data)
        : m_data(data)
    {
    }

    void addModel(const QString &id, const QString &family, const QString &name, QSize size,
                  double pitch, double weight, double power)
    {
        constexpr double mainsVoltage = 230.0;
        m_data->models.append({id, family, name, size, pitch, weight, power, mainsVoltage, {}});
    }

    void addSender(const QString &id, const QString &name, const QString &connection,
                   bool isOnline = true)
    {
        m_data->senders.append({id, name, connection, isOnline, {}, {}});
    }

    /// Adds a port to the last sender.
    void addPort(PortKind kind = PortKind::Network)
    {
        Sender &sender = m_data->senders.last();
        Port port;
        port.number = sender.ports.size() + 1;
        port.kind = kind;
        sender.ports.append(port);
    }

    /// Hangs cabinets on the last port.
    void addStock(const QString &modelId, int count)
    {
        m_data->senders.last().ports.last().stock.append({modelId, count, {}});
    }

    /// Lets the last port feed a block of \a count cabinets, and hangs \a left more on it. The data
    /// line runs along the first row to the right, back along the second, and so on.
    void addBlock(const QString &modelId, QPoint position, int columns, int count, int left)
    {
        addStock(modelId, count + left);
        const Sender &sender = m_data->senders.constLast();
        const QSize size = sizeOf(modelId);
        PlacedCabinet cabinet;
        cabinet.modelId = modelId;
        cabinet.port = {sender.id, sender.ports.constLast().number};
        for (int i = 0; i < count; ++i) {
            const int row = i / columns;
            const int step = i % columns;
            const int rowLength = qMin(columns, count - row * columns);
            const int column = row % 2 == 0 ? step : rowLength - 1 - step;
            cabinet.position = position + QPoint(column * size.width(), row * size.height());
            m_data->cabinets.append(cabinet);
        }
    }

private:
    QSize sizeOf(const QString &modelId) const
    {
        for (const CabinetModel &model : qAsConst(m_data->models)) {
            if (model.id == modelId)
                return model.size;
        }
        return {};
    }

    ProjectData *m_data;
};

} // namespace

ProjectData demoProject()
{
    const QString panel = QStringLiteral("stage-26");
    const QString half = QStringLiteral("stage-26-half");
    const QString column = QStringLiteral("stage-26-column");
    const QString banner = QStringLiteral("banner-52");
    const QString cube = QStringLiteral("cube-39");

    ProjectData data;
    data.name = QStringLiteral("Harbour Hall main stage");
    Builder builder(&data);
    builder.addModel(panel, QStringLiteral("Stage"), QStringLiteral("Stage 2.6"),
                     QSize(panelLength, panelLength), 2.6, 7.4, 145);
    builder.addModel(half, QStringLiteral("Stage"), QStringLiteral("Stage 2.6 half"),
                     QSize(panelLength, panelLength / 2), 2.6, 4.1, 74);
    builder.addModel(column, QStringLiteral("Stage"), QStringLiteral("Stage 2.6 column"),
                     QSize(panelLength / 2, panelLength), 2.6, 4.2, 74);
    builder.addModel(banner, QStringLiteral("Banner"), QStringLiteral("Banner 5.2"), bannerSize,
                     5.2, 13.5, 210);
    builder.addModel(cube, QStringLiteral("Cube"), QStringLiteral("Cube 3.9"), cubeSize, 3.9, 8.2,
                     120);

    // The main screen: 20 by 12 panels from two senders, each port with 5 by 3 of them.
    constexpr int screenColumns = 20;
    constexpr int screenRows = 12;
    constexpr int portColumns = 5;
    constexpr int portRows = 3;
    constexpr int portsPerHalf = 8;
    const QSize screen(screenColumns * panelLength, screenRows * panelLength);
    const auto addHalf = [&builder, &panel](int left) {
        for (int i = 0; i < portsPerHalf; ++i) {
            const QPoint position(left + i % 2 * portColumns * panelLength,
                                  bannerSize.height() + i / 2 * portRows * panelLength);
            builder.addPort();
            // Every fourth port has used up what hangs on it.
            builder.addBlock(panel, position, portColumns, portColumns * portRows, (i + 1) % 4);
        }
    };
    builder.addSender(QStringLiteral("s1"), QStringLiteral("Main left"), QStringLiteral("COM3"));
    addHalf(0);
    builder.addSender(QStringLiteral("s2"), QStringLiteral("Main right"), QStringLiteral("COM4"));
    addHalf(screen.width() / 2);

    // What is around it: the banner above, the base below, a wing and a side screen at either side.
    constexpr int wingColumns = 2;
    constexpr int wingWidth = panelLength;
    constexpr int sideColumns = 5;
    constexpr int sideRows = 8;
    constexpr int gap = 2 * panelLength;
    const int screenBottom = bannerSize.height() + screen.height();
    const int sideTop = screenBottom + panelLength / 2 - sideRows * cubeSize.height();
    builder.addSender(QStringLiteral("s3"), QStringLiteral("Frame"), QStringLiteral("COM5"));
    const int bannerColumns = screen.width() / bannerSize.width();
    builder.addPort();
    builder.addBlock(banner, QPoint(0, 0), bannerColumns, bannerColumns, 1);
    builder.addPort();
    builder.addBlock(half, QPoint(0, screenBottom), screenColumns, screenColumns, 4);
    for (const int left : {-wingWidth, screen.width()}) {
        builder.addPort();
        builder.addBlock(column, QPoint(left, bannerSize.height()), wingColumns,
                         wingColumns * screenRows, 2);
    }
    const int leftSide = -wingWidth - gap - sideColumns * cubeSize.width();
    builder.addPort();
    builder.addBlock(cube, QPoint(leftSide, sideTop), sideColumns, sideColumns * sideRows, 0);
    builder.addStock(half, 2);
    builder.addPort();
    builder.addStock(panel, 6);
    builder.addStock(half, 3);
    builder.addStock(banner, 2);

    // The right side screen is laid out, but its sender is not switched on.
    builder.addSender(QStringLiteral("s4"), QStringLiteral("Side right"), QStringLiteral("COM7"),
                      false);
    builder.addPort(PortKind::Coaxial);
    builder.addBlock(cube, QPoint(screen.width() + wingWidth + gap, sideTop), sideColumns,
                     sideColumns * sideRows, 0);
    constexpr int sparePorts = 3;
    for (int i = 0; i < sparePorts; ++i) {
        builder.addPort(PortKind::Coaxial);
        builder.addStock(cube, 4);
    }
    return data;
}

std::optional<ProjectData> generateProject(int cabinetCount, const Progress &progress)
{
    const int count = qBound(1, cabinetCount, maxCabinets);
    const int columns = qMax(1, qRound(std::sqrt(count * wallRatio)));
    const int rows = (count + columns - 1) / columns;
    const QStringList modelIds = {QStringLiteral("field-39"), QStringLiteral("field-39-bright"),
                                  QStringLiteral("field-39-clear")};

    ProjectData data;
    data.name = QStringLiteral("Wall of %1 cabinets").arg(count);
    data.cabinets.reserve(count);
    Builder builder(&data);
    builder.addModel(modelIds.at(0), QStringLiteral("Field"), QStringLiteral("Field 3.9"),
                     fieldSize, 3.9, 8.0, 130);
    builder.addModel(modelIds.at(1), QStringLiteral("Field"), QStringLiteral("Field 3.9 bright"),
                     fieldSize, 3.9, 8.4, 190);
    builder.addModel(modelIds.at(2), QStringLiteral("Field"), QStringLiteral("Field 3.9 clear"),
                     fieldSize, 3.9, 5.2, 110);

    int reported = 0;
    if (progress && !progress(0))
        return std::nullopt;
    for (int top = 0; top < rows; top += blockRows) {
        for (int left = 0; left < columns; left += blockColumns) {
            const int width = qMin(blockColumns, columns - left);
            const int height = qMin(blockRows, rows - top);
            // The wall's last row may be short.
            const int lastRow = top + height - 1;
            const int lastWidth = qBound(0, count - lastRow * columns - left, width);
            const int blockCount = width * (height - 1) + lastWidth;
            if (blockCount == 0)
                continue;
            if (data.senders.isEmpty() || data.senders.constLast().ports.size() == maxPortNumber) {
                const int number = data.senders.size() + 1;
                builder.addSender(QStringLiteral("s%1").arg(number),
                                  QStringLiteral("Sender %1").arg(number),
                                  QStringLiteral("COM%1").arg(number));
            }
            const QString modelId = modelIds.at((data.senders.size() - 1) % modelIds.size());
            const QPoint position(left * fieldSize.width(), top * fieldSize.height());
            builder.addPort();
            builder.addBlock(modelId, position, width, blockCount, spareCabinets);

            const int done = data.cabinets.size();
            if (progress
                && (done == count || done + blockColumns * blockRows > reported + progressStep)) {
                reported = done;
                if (!progress(int(qint64(allPercent) * done / count)))
                    return std::nullopt;
            }
        }
    }
    return data;
}

} // namespace wall
