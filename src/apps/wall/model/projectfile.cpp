#include "projectfile.h"

#include <QByteArrayList>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QSet>
#include <QStringList>
#include <QVariant>

#include <cmath>
#include <limits>

namespace wall
{

namespace
{

constexpr int maxFileSize = 1024 * 1024 * 1024;
constexpr int chunkSize = 1024 * 1024;
constexpr int maxShownValue = 40; ///< Characters of a wrong value that a message shows.

// How far loading has come, in percent, when the file is read and when its text is parsed.
constexpr int readPercent = 30;
constexpr int parsedPercent = 50;
constexpr int allPercent = 100;

QString formatName()
{
    return QStringLiteral("orvane-wall");
}

QString networkKind()
{
    return QStringLiteral("network");
}

QString coaxialKind()
{
    return QStringLiteral("coaxial");
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QByteArray jsonText(const QJsonValue &value);

QByteArray scalarText(const QJsonValue &value)
{
    // Whole numbers would lose digits on Qt's way to text, which is by way of a double.
    const QVariant variant = value.toVariant();
    if (variant.userType() == QMetaType::LongLong)
        return QByteArray::number(variant.toLongLong());
    // A document has to be an array or an object.
    const QByteArray array =
        QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::JsonFormat::Compact);
    return array.mid(1, array.size() - 2);
}

/// The members of an object without its braces, each as \c "name": value.
QByteArrayList memberTexts(const QJsonObject &object)
{
    QByteArrayList texts;
    for (auto member = object.begin(); member != object.end(); ++member)
        texts.append(scalarText(member.key()) + ": " + jsonText(member.value()));
    return texts;
}

/// A value in one line.
QByteArray jsonText(const QJsonValue &value)
{
    if (value.isObject())
        return '{' + memberTexts(value.toObject()).join(", ") + '}';
    if (!value.isArray())
        return scalarText(value);
    QByteArrayList texts;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &element : array)
        texts.append(jsonText(element));
    return '[' + texts.join(", ") + ']';
}

/// A value as a message shows it.
QString shown(const QJsonValue &value)
{
    if (value.isObject())
        return QStringLiteral("an object");
    if (value.isArray())
        return QStringLiteral("a list");
    const QString text = QString::fromUtf8(jsonText(value));
    return text.size() <= maxShownValue ? text : text.left(maxShownValue) + QStringLiteral("...");
}

/// Where a value stands in the file: a member or an element of what the outer place names. The
/// text is made only when an error needs it.
struct Place {
    const Place *outer = nullptr;
    QString member; ///< Empty for an element.
    int index = -1;

    QString text() const
    {
        const QString before = outer ? outer->text() : QString();
        if (index >= 0)
            return QStringLiteral("%1[%2]").arg(before).arg(index);
        return before.isEmpty() ? member : before + QLatin1Char('.') + member;
    }
};

/// Calls back at least once every progressStep steps.
class Steps
{
public:
    Steps(const Progress &progress, int firstPercent, qint64 total)
        : m_progress(progress)
        , m_firstPercent(firstPercent)
        , m_total(qMax<qint64>(total, 1))
    {
    }

    /// Counts a step; false when the work is cancelled.
    bool next()
    {
        ++m_done;
        if (m_done % progressStep == 0 && m_progress) {
            const qint64 part = (allPercent - m_firstPercent) * m_done / m_total;
            m_isCancelled = m_isCancelled || !m_progress(m_firstPercent + int(part));
        }
        return !m_isCancelled;
    }

    bool isCancelled() const { return m_isCancelled; }

private:
    const Progress &m_progress;
    int m_firstPercent;
    qint64 m_total;
    qint64 m_done = 0;
    bool m_isCancelled = false;
};

/// The first error of a file.
class Problem
{
public:
    void set(const QString &place, const QString &text)
    {
        if (m_isSet)
            return;
        m_isSet = true;
        m_place = place;
        m_text = text;
    }
    bool isSet() const { return m_isSet; }
    QString place() const { return m_place; }
    QString text() const { return m_text; }

private:
    bool m_isSet = false;
    QString m_place;
    QString m_text;
};

/// Reads the members of one object. What is wrong goes to the problem; the result is a default.
class ObjectReader
{
public:
    ObjectReader(const QJsonValue &value, const Place &place, Problem *problem)
        : m_object(value.toObject())
        , m_place(place)
        , m_problem(problem)
    {
        if (!value.isObject())
            m_problem->set(place.text(), QStringLiteral("%1 is not an object").arg(shown(value)));
    }

    bool has(const QString &name) const { return m_object.contains(name); }

    QString text(const QString &name)
    {
        const QJsonValue value = required(name);
        if (!value.isString())
            fail(name, QStringLiteral("%1 is not a text").arg(shown(value)));
        return value.toString();
    }

    QString optionalText(const QString &name) { return has(name) ? text(name) : QString(); }

    /// A text that names something.
    QString id(const QString &name)
    {
        QString id = text(name);
        if (id.isEmpty())
            fail(name, QStringLiteral("the text is empty"));
        return id;
    }

    int wholeNumber(const QString &name, int minimum, int maximum)
    {
        const QJsonValue value = required(name);
        const double number = value.toDouble(std::nan(""));
        if (!(number >= minimum && number <= maximum && number == std::floor(number))) {
            fail(name,
                 QStringLiteral("%1 is not a whole number from %2 to %3")
                     .arg(shown(value))
                     .arg(minimum)
                     .arg(maximum));
            return minimum;
        }
        return int(number);
    }

    double number(const QString &name, double maximum, bool isZeroAllowed = true)
    {
        const QJsonValue value = required(name);
        const double number = value.toDouble(-1.0);
        if (!(number >= 0.0 && number <= maximum) || (number == 0.0 && !isZeroAllowed)) {
            const QString range = isZeroAllowed ? QStringLiteral("from 0 to %1")
                                                : QStringLiteral("greater than 0 and at most %1");
            fail(name,
                 QStringLiteral("%1 is not a number %2")
                     .arg(shown(value), range.arg(QString::number(maximum, 'f', 0))));
        }
        return number;
    }

    bool truth(const QString &name, bool isTrueWhenMissing)
    {
        if (!has(name))
            return isTrueWhenMissing;
        const QJsonValue value = required(name);
        if (!value.isBool())
            fail(name, QStringLiteral("%1 is not true or false").arg(shown(value)));
        return value.toBool();
    }

    QJsonArray list(const QString &name)
    {
        const QJsonValue value = required(name);
        if (!value.isArray())
            fail(name, QStringLiteral("%1 is not a list").arg(shown(value)));
        return value.toArray();
    }

    QJsonArray optionalList(const QString &name) { return has(name) ? list(name) : QJsonArray(); }

    /// The members that were not read.
    QJsonObject rest() const
    {
        if (m_known.size() == m_object.size())
            return {};
        QJsonObject rest = m_object;
        for (const QString &name : m_known)
            rest.remove(name);
        return rest;
    }

    void fail(const QString &name, const QString &text)
    {
        m_problem->set(Place{&m_place, name}.text(), text);
    }

private:
    QJsonValue required(const QString &name)
    {
        const auto found = m_object.constFind(name);
        if (found == m_object.constEnd()) {
            fail(name, QStringLiteral("is missing"));
            return {};
        }
        m_known.append(name);
        return found.value();
    }

    QJsonObject m_object;
    const Place &m_place;
    Problem *m_problem;
    QStringList m_known;
};

class Reader
{
public:
    Reader(const Progress &progress, const QJsonObject &root)
        : m_steps(progress, parsedPercent,
                  qint64(root.value(QStringLiteral("models")).toArray().size())
                      + root.value(QStringLiteral("senders")).toArray().size()
                      + root.value(QStringLiteral("cabinets")).toArray().size())
    {
    }

    ProjectData read(const QJsonObject &root);
    const Problem &problem() const { return m_problem; }
    bool isCancelled() const { return m_steps.isCancelled(); }

private:
    bool goesOn() { return !m_problem.isSet() && m_steps.next(); }
    CabinetModel readModel(const QJsonValue &value, const Place &place);
    Sender readSender(const QJsonValue &value, const Place &place);
    Port readPort(const QJsonValue &value, const Place &place);
    StockEntry readStock(const QJsonValue &value, const Place &place);
    PlacedCabinet readCabinet(const QJsonValue &value, const Place &place);
    QString knownModel(ObjectReader *object);

    Steps m_steps;
    Problem m_problem;
    // The same texts again and again: those of the models and senders are shared.
    QSet<QString> m_modelIds;
    QSet<QString> m_senderIds;
    QSet<PortRef> m_ports;
    QHash<QPair<PortRef, QString>, int> m_left;
};

ProjectData Reader::read(const QJsonObject &root)
{
    ProjectData data;
    const Place top;
    ObjectReader object(root, top, &m_problem);

    const QString format = object.text(QStringLiteral("format"));
    if (format != formatName()) {
        object.fail(QStringLiteral("format"),
                    QStringLiteral("%1 is not %2").arg(quoted(format), quoted(formatName())));
    }
    const int version =
        object.wholeNumber(QStringLiteral("version"), 1, std::numeric_limits<int>::max());
    if (version > projectFileVersion) {
        object.fail(QStringLiteral("version"),
                    QStringLiteral("%1 is newer than %2, the newest that this program reads")
                        .arg(version)
                        .arg(projectFileVersion));
    }
    // A newer file may be different in any way, so nothing else of it is judged.
    if (m_problem.isSet())
        return {};

    data.name = object.optionalText(QStringLiteral("name"));
    const Place models{&top, QStringLiteral("models")};
    const QJsonArray modelList = object.list(models.member);
    for (int i = 0; i < modelList.size() && goesOn(); ++i)
        data.models.append(readModel(modelList.at(i), Place{&models, {}, i}));

    const Place senders{&top, QStringLiteral("senders")};
    const QJsonArray senderList = object.list(senders.member);
    for (int i = 0; i < senderList.size() && goesOn(); ++i)
        data.senders.append(readSender(senderList.at(i), Place{&senders, {}, i}));

    const Place cabinets{&top, QStringLiteral("cabinets")};
    const QJsonArray cabinetList = object.list(cabinets.member);
    if (cabinetList.size() > maxCabinets) {
        m_problem.set(cabinets.member,
                      QStringLiteral("%1 cabinets are more than %2")
                          .arg(cabinetList.size())
                          .arg(maxCabinets));
        return {};
    }
    data.cabinets.reserve(cabinetList.size());
    for (int i = 0; i < cabinetList.size() && goesOn(); ++i)
        data.cabinets.append(readCabinet(cabinetList.at(i), Place{&cabinets, {}, i}));

    data.extra = object.rest();
    return data;
}

CabinetModel Reader::readModel(const QJsonValue &value, const Place &place)
{
    ObjectReader object(value, place, &m_problem);
    CabinetModel model;
    model.id = object.id(QStringLiteral("id"));
    if (m_modelIds.contains(model.id))
        object.fail(QStringLiteral("id"), QStringLiteral("%1 occurs twice").arg(quoted(model.id)));
    m_modelIds.insert(model.id);
    model.family = object.optionalText(QStringLiteral("family"));
    model.name = object.text(QStringLiteral("name"));
    const int width =
        object.wholeNumber(QStringLiteral("width"), minCabinetLength, maxCabinetLength);
    const int height =
        object.wholeNumber(QStringLiteral("height"), minCabinetLength, maxCabinetLength);
    model.size = QSize(width, height);
    model.pitch = object.number(QStringLiteral("pitch"), maxPitch, false);
    model.weight = object.number(QStringLiteral("weight"), maxWeight);
    model.power = object.number(QStringLiteral("power"), maxPower);
    model.voltage = object.number(QStringLiteral("voltage"), maxVoltage);
    model.extra = object.rest();
    return model;
}

Sender Reader::readSender(const QJsonValue &value, const Place &place)
{
    ObjectReader object(value, place, &m_problem);
    Sender sender;
    sender.id = object.id(QStringLiteral("id"));
    if (m_senderIds.contains(sender.id))
        object.fail(QStringLiteral("id"), QStringLiteral("%1 occurs twice").arg(quoted(sender.id)));
    m_senderIds.insert(sender.id);
    sender.name = object.text(QStringLiteral("name"));
    sender.connection = object.optionalText(QStringLiteral("connection"));
    sender.isOnline = object.truth(QStringLiteral("online"), true);
    const Place ports{&place, QStringLiteral("ports")};
    const QJsonArray portList = object.list(ports.member);
    for (int i = 0; i < portList.size() && !m_problem.isSet(); ++i) {
        const Place portPlace{&ports, {}, i};
        const Port port = readPort(portList.at(i), portPlace);
        const PortRef ref{sender.id, port.number};
        if (m_ports.contains(ref)) {
            m_problem.set(Place{&portPlace, QStringLiteral("number")}.text(),
                          QStringLiteral("port %1 occurs twice").arg(port.number));
        }
        m_ports.insert(ref);
        for (const StockEntry &entry : port.stock)
            m_left.insert({ref, entry.modelId}, entry.count);
        sender.ports.append(port);
    }
    sender.extra = object.rest();
    return sender;
}

Port Reader::readPort(const QJsonValue &value, const Place &place)
{
    ObjectReader object(value, place, &m_problem);
    Port port;
    port.number = object.wholeNumber(QStringLiteral("number"), minPortNumber, maxPortNumber);
    const QString kind = object.text(QStringLiteral("kind"));
    if (kind == coaxialKind()) {
        port.kind = PortKind::Coaxial;
    } else if (kind != networkKind()) {
        object.fail(QStringLiteral("kind"),
                    QStringLiteral("%1 is neither %2 nor %3")
                        .arg(shown(kind), quoted(networkKind()), quoted(coaxialKind())));
    }
    const Place stock{&place, QStringLiteral("stock")};
    const QJsonArray stockList = object.optionalList(stock.member);
    QSet<QString> modelIds;
    for (int i = 0; i < stockList.size() && !m_problem.isSet(); ++i) {
        const Place entryPlace{&stock, {}, i};
        const StockEntry entry = readStock(stockList.at(i), entryPlace);
        if (modelIds.contains(entry.modelId)) {
            m_problem.set(Place{&entryPlace, QStringLiteral("model")}.text(),
                          QStringLiteral("%1 occurs twice").arg(quoted(entry.modelId)));
        }
        modelIds.insert(entry.modelId);
        port.stock.append(entry);
    }
    port.extra = object.rest();
    return port;
}

StockEntry Reader::readStock(const QJsonValue &value, const Place &place)
{
    ObjectReader object(value, place, &m_problem);
    StockEntry entry;
    entry.modelId = knownModel(&object);
    entry.count = object.wholeNumber(QStringLiteral("count"), 0, maxStock);
    entry.extra = object.rest();
    return entry;
}

PlacedCabinet Reader::readCabinet(const QJsonValue &value, const Place &place)
{
    ObjectReader object(value, place, &m_problem);
    PlacedCabinet cabinet;
    cabinet.modelId = knownModel(&object);
    const QString senderId = object.text(QStringLiteral("sender"));
    const auto sender = m_senderIds.constFind(senderId);
    if (sender == m_senderIds.cend()) {
        object.fail(QStringLiteral("sender"),
                    QStringLiteral("there is no sender %1").arg(shown(senderId)));
    } else {
        cabinet.port.senderId = *sender;
    }
    cabinet.port.number = object.wholeNumber(QStringLiteral("port"), minPortNumber, maxPortNumber);
    if (!m_ports.contains(cabinet.port)) {
        object.fail(QStringLiteral("port"),
                    QStringLiteral("sender %1 has no port %2")
                        .arg(shown(senderId))
                        .arg(cabinet.port.number));
    }
    const int x = object.wholeNumber(QStringLiteral("x"), -maxCoordinate, maxCoordinate);
    const int y = object.wholeNumber(QStringLiteral("y"), -maxCoordinate, maxCoordinate);
    cabinet.position = QPoint(x, y);
    constexpr int lastDegree = 359;
    if (object.has(QStringLiteral("rotation")))
        cabinet.rotation = object.wholeNumber(QStringLiteral("rotation"), 0, lastDegree);
    cabinet.extra = object.rest();

    const auto left = m_left.find({cabinet.port, cabinet.modelId});
    if (left == m_left.end() || *left == 0) {
        m_problem.set(place.text(),
                      QStringLiteral("port %1 of sender %2 has no more cabinets of model %3")
                          .arg(cabinet.port.number)
                          .arg(shown(senderId), shown(cabinet.modelId)));
    } else {
        --*left;
    }
    return cabinet;
}

QString Reader::knownModel(ObjectReader *object)
{
    QString id = object->text(QStringLiteral("model"));
    const auto found = m_modelIds.constFind(id);
    if (found != m_modelIds.cend())
        return *found;
    object->fail(QStringLiteral("model"), QStringLiteral("there is no model %1").arg(shown(id)));
    return id;
}

LoadResult failure(const QString &file, const QString &place, const QString &problem)
{
    LoadResult result;
    result.error = {file, place, problem};
    return result;
}

LoadResult cancelledLoading()
{
    LoadResult result;
    result.state = LoadResult::Cancelled;
    return result;
}

/// "line 3, column 14", both counted from 1 and the column in characters: where the parser stopped.
QString stoppedAt(const QByteArray &json, const QJsonParseError &error)
{
    // Mostly it has taken the character that it does not like; not so behind the last value.
    const bool isTaken = error.error != QJsonParseError::GarbageAtEnd && error.offset < json.size();
    const QByteArray before = json.left(qMax(0, isTaken ? error.offset - 1 : error.offset));
    const int line = before.count('\n') + 1;
    const QByteArray lineBefore = before.mid(before.lastIndexOf('\n') + 1);
    const int column = QString::fromUtf8(lineBefore).toUcs4().size() + 1;
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

bool goesOn(const Progress &progress, int percent)
{
    return !progress || progress(percent);
}

/// Composes the members of an object, the given ones first, then those it keeps.
class ObjectText
{
public:
    ObjectText &add(const char *name, const QByteArray &json)
    {
        m_members.append('"' + QByteArray(name) + "\": " + json);
        return *this;
    }
    ObjectText &add(const char *name, const QString &text) { return add(name, scalarText(text)); }
    ObjectText &add(const char *name, int number) { return add(name, QByteArray::number(number)); }
    ObjectText &add(const char *name, double number) { return add(name, scalarText(number)); }
    ObjectText &add(const QJsonObject &extra)
    {
        m_members += memberTexts(extra);
        return *this;
    }
    QByteArray members(const QByteArray &separator) const { return m_members.join(separator); }
    QByteArray object() const { return '{' + members(", ") + '}'; }

private:
    QByteArrayList m_members;
};

QByteArray modelText(const CabinetModel &model)
{
    return ObjectText()
        .add("id", model.id)
        .add("family", model.family)
        .add("name", model.name)
        .add("width", model.size.width())
        .add("height", model.size.height())
        .add("pitch", model.pitch)
        .add("weight", model.weight)
        .add("power", model.power)
        .add("voltage", model.voltage)
        .add(model.extra)
        .object();
}

QByteArray portText(const Port &port)
{
    QByteArrayList stock;
    for (const StockEntry &entry : port.stock) {
        stock.append(ObjectText()
                         .add("model", entry.modelId)
                         .add("count", entry.count)
                         .add(entry.extra)
                         .object());
    }
    return ObjectText()
        .add("number", port.number)
        .add("kind", port.kind == PortKind::Coaxial ? coaxialKind() : networkKind())
        .add("stock", '[' + stock.join(", ") + ']')
        .add(port.extra)
        .object();
}

QByteArray senderText(const Sender &sender)
{
    QByteArrayList ports;
    for (const Port &port : sender.ports)
        ports.append("\n            " + portText(port));
    return ObjectText()
        .add("id", sender.id)
        .add("name", sender.name)
        .add("connection", sender.connection)
        .add("online", QByteArray(sender.isOnline ? "true" : "false"))
        .add(sender.extra)
        .add("ports", '[' + ports.join(',') + (ports.isEmpty() ? "]" : "\n        ]"))
        .object();
}

/// The texts of cabinets, which name few models and senders many times.
class CabinetTexts
{
public:
    QByteArray text(const PlacedCabinet &cabinet)
    {
        return ObjectText()
            .add("model", name(cabinet.modelId))
            .add("sender", name(cabinet.port.senderId))
            .add("port", cabinet.port.number)
            .add("x", cabinet.position.x())
            .add("y", cabinet.position.y())
            .add("rotation", cabinet.rotation)
            .add(cabinet.extra)
            .object();
    }

private:
    QByteArray name(const QString &id)
    {
        auto found = m_names.find(id);
        if (found == m_names.end())
            found = m_names.insert(id, scalarText(id));
        return *found;
    }

    QHash<QString, QByteArray> m_names;
};

/// Writes a list, an element a line.
template <class Element, class ToText>
bool writeList(QIODevice *device, const char *name, const QVector<Element> &elements, ToText toText,
               Steps *steps)
{
    device->write(QByteArray(",\n    \"") + name + "\": [");
    const char *separator = "\n        ";
    for (const Element &element : elements) {
        if (device->write(separator + toText(element)) < 0 || !steps->next())
            return false;
        separator = ",\n        ";
    }
    return device->write(elements.isEmpty() ? "]" : "\n    ]") > 0;
}

bool writeProject(QIODevice *device, const ProjectData &data, Steps *steps)
{
    const QByteArray head = ObjectText()
                                .add("format", formatName())
                                .add("version", projectFileVersion)
                                .add("name", data.name)
                                .add(data.extra)
                                .members(",\n    ");
    device->write("{\n    " + head);
    CabinetTexts cabinets;
    return writeList(device, "models", data.models, modelText, steps)
        && writeList(device, "senders", data.senders, senderText, steps)
        && writeList(
               device, "cabinets", data.cabinets,
               [&cabinets](const PlacedCabinet &cabinet) { return cabinets.text(cabinet); }, steps)
        && device->write("\n}\n") > 0;
}

} // namespace

QString FileError::message() const
{
    return place.isEmpty() ? QStringLiteral("%1: %2").arg(file, problem)
                           : QStringLiteral("%1: %2: %3").arg(file, place, problem);
}

LoadResult loadProject(const QString &file, const Progress &progress)
{
    if (!goesOn(progress, 0))
        return cancelledLoading();
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly)) {
        return failure(file, {}, QStringLiteral("cannot be opened: %1").arg(device.errorString()));
    }
    const qint64 size = device.size();
    QByteArray json;
    while (true) {
        const QByteArray chunk = device.read(chunkSize);
        if (device.error() != QFileDevice::NoError) {
            return failure(file, {},
                           QStringLiteral("cannot be read: %1").arg(device.errorString()));
        }
        if (chunk.isEmpty())
            break;
        json += chunk;
        if (json.size() > maxFileSize)
            return failure(file, {}, QStringLiteral("is larger than 1 GiB"));
        const qint64 done = json.size();
        if (!goesOn(progress, int(readPercent * done / qMax(size, done))))
            return cancelledLoading();
    }
    return parseProject(json, file, progress);
}

LoadResult parseProject(const QByteArray &json, const QString &file, const Progress &progress)
{
    if (!goesOn(progress, readPercent))
        return cancelledLoading();
    if (json.trimmed().isEmpty())
        return failure(file, {}, QStringLiteral("is empty"));
    QJsonParseError syntax;
    const QJsonDocument document = QJsonDocument::fromJson(json, &syntax);
    if (syntax.error != QJsonParseError::NoError) {
        return failure(file, stoppedAt(json, syntax), syntax.errorString());
    }
    if (!document.isObject())
        return failure(file, {}, QStringLiteral("there is a list at the top, not an object"));
    if (!goesOn(progress, parsedPercent))
        return cancelledLoading();

    const QJsonObject root = document.object();
    Reader reader(progress, root);
    LoadResult result;
    result.data = reader.read(root);
    if (reader.problem().isSet())
        return failure(file, reader.problem().place(), reader.problem().text());
    if (reader.isCancelled() || !goesOn(progress, allPercent))
        return cancelledLoading();
    result.state = LoadResult::Loaded;
    return result;
}

SaveResult saveProject(const QString &file, const ProjectData &data, const Progress &progress)
{
    SaveResult result;
    result.state = SaveResult::Cancelled;
    if (!goesOn(progress, 0))
        return result;
    const auto failed = [&result, &file](const QString &problem) {
        result.state = SaveResult::Failed;
        result.error = {file, {}, QStringLiteral("cannot be saved: ") + problem};
        return result;
    };
    QSaveFile device(file);
    if (!device.open(QIODevice::WriteOnly))
        return failed(device.errorString());
    Steps steps(progress, 0,
                qint64(data.models.size()) + data.senders.size() + data.cabinets.size());
    // A commit does not see that its own last flush failed, so that is done before.
    const bool isWritten = writeProject(&device, data, &steps) && device.flush();
    if (steps.isCancelled())
        return result;
    if (!isWritten) {
        return failed(
            QStringLiteral("not all of it could be written (%1)").arg(device.errorString()));
    }
    if (!goesOn(progress, allPercent))
        return result;
    if (!device.commit())
        return failed(device.errorString());
    result.state = SaveResult::Saved;
    return result;
}

} // namespace wall
