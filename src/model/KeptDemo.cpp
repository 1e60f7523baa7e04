#include "model/KeptDemo.h"

#include "model/DocumentError.h"
#include "model/Fields.h"
#include "model/propertylist/BinaryReader.h"
#include "model/propertylist/BinaryWriter.h"

#include <QCoreApplication>

namespace velvane {

namespace {

namespace Key {
const QString id = QStringLiteral("id");
const QString path = QStringLiteral("path");
const QString title = QStringLiteral("title");
const QString kept = QStringLiteral("kept");
const QString device = QStringLiteral("device");
const QString inode = QStringLiteral("inode");
const QString size = QStringLiteral("size");
const QString modified = QStringLiteral("modified");
const QString demo = QStringLiteral("demo");
} // namespace Key

std::optional<FileStamp> readStamp(const Fields &fields)
{
    const auto inode = fields.integer<quint64>(Key::inode);
    if (!inode)
        return {};
    return FileStamp{fields.integer<quint64>(Key::device).value_or(0), *inode,
                     fields.integer<qint64>(Key::size).value_or(0),
                     fields.integer<qint64>(Key::modified).value_or(0)};
}

} // namespace

QByteArray KeptDemo::contents() const
{
    PropertyList::Dictionary root{
        {Key::id, id.toString(QUuid::WithoutBraces)},
        {Key::path, path},
        {Key::title, title},
        {Key::kept, kept.toMSecsSinceEpoch()},
    };
    if (stamp) {
        root.append({Key::device, stamp->device});
        root.append({Key::inode, stamp->inode});
        root.append({Key::size, stamp->size});
        root.append({Key::modified, stamp->modified});
    }
    if (demo)
        root.append({Key::demo, demo->toPropertyList()});
    return BinaryWriter::write(root);
}

KeptDemo KeptDemo::from(const QByteArray &contents)
{
    if (!BinaryReader::recognises(contents))
        throw DocumentError(QCoreApplication::translate("KeptDemo", "not a property list"));
    const PropertyList root = BinaryReader::read(contents);
    const Fields fields(root, 0);
    KeptDemo kept{
        .id = fields.required(Key::id, fields.id(Key::id)),
        .path = fields.text(Key::path).value_or(QString()),
        .title = fields.text(Key::title).value_or(QString()),
        .kept = QDateTime::fromMSecsSinceEpoch(fields.integer<qint64>(Key::kept).value_or(0)),
        .stamp = readStamp(fields),
        .demo = {},
    };
    if (const PropertyList *demo = find(*root.as<PropertyList::Dictionary>(), Key::demo))
        kept.demo = ProjectFile::from(*demo);
    return kept;
}

} // namespace velvane
