#include "catalogue.h"

#include "database.h"
#include "navigationreader.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace service {

namespace {

const int MaxDepth = 16;

/// Flattens the nested blocks of one security type into rows.
class BlockReader
{
public:
    void blocks(const QJsonArray &array, const DocumentPlace &place)
    {
        static const MemberRules rules{{"securityType", MemberType::Whole, true},
                                       {"nodes", MemberType::Array, true}};
        for (int i = 0; i < array.size(); ++i) {
            const QJsonObject block = checkedObject(array.at(i), rules, place.element(i));
            m_type = block.value(QLatin1String("securityType")).toInt();
            nodes(block, 0, 1, place.element(i));
        }
    }

    RowSource source(const SqlDialect &dialect) const
    {
        return sourceOfRows({QStringLiteral("SECT_ID"), QStringLiteral("P_SECT_ID"),
                             QStringLiteral("SECT_NAME"), QStringLiteral("SECU_TYP_CODE")},
                            m_rows, dialect);
    }

private:
    void nodes(const QJsonObject &parent, qint64 parentCode, int level, const DocumentPlace &place)
    {
        static const MemberRules rules{{"code", MemberType::Whole, true},
                                       {"name", MemberType::Text, true},
                                       {"nodes", MemberType::Array}};
        const QJsonArray array = parent.value(QLatin1String("nodes")).toArray();
        const DocumentPlace at = place.member(QStringLiteral("nodes"));
        if (level > MaxDepth)
            return at.fault(QStringLiteral("nodes more than %1 deep").arg(MaxDepth));
        for (int i = 0; i < array.size(); ++i) {
            const QJsonObject node = checkedObject(array.at(i), rules, at.element(i));
            const auto code = static_cast<qint64>(node.value(QLatin1String("code")).toDouble());
            m_rows << QVariantList{code, parentCode, node.value(QLatin1String("name")).toString(), m_type};
            nodes(node, code, level + 1, at.element(i));
        }
    }

    QVector<QVariantList> m_rows;
    int m_type = 0;
};

RowSource readBlocks(const QJsonObject &object, Database &database, const DocumentPlace &place)
{
    if (!object.contains(QLatin1String("blocks")))
        return readRowSource(object, database, place);
    static const MemberRules rules{{"blocks", MemberType::Array, true}};
    BlockReader reader;
    reader.blocks(checkedObject(object, rules, place).value(QLatin1String("blocks")).toArray(),
                  place.member(QStringLiteral("blocks")));
    return reader.source(database.dialect());
}

QMap<QString, RowSource> readLists(const QJsonObject &object, Database &database, const DocumentPlace &place)
{
    static const MemberRules rules{{"lists", MemberType::Object, true}};
    const QJsonObject lists = checkedObject(object, rules, place).value(QLatin1String("lists")).toObject();
    QMap<QString, RowSource> result;
    for (auto it = lists.begin(); it != lists.end(); ++it) {
        const DocumentPlace at = place.member(QStringLiteral("lists")).member(it.key());
        if (!isComment(it.key()))
            result.insert(it.key(), readRowSource(it.value(), database, at));
    }
    return result;
}

/// Reads one optional file with \a reader and stores what it gives, unless there was a fault.
template <typename Target, typename Reader>
void readFile(const QString &folder, const QString &name, Target *target, QStringList *faults, Reader reader)
{
    const QString path = QDir(folder).filePath(name);
    if (!QFile::exists(path))
        return;
    QStringList found;
    const DocumentPlace place(name, &found);
    QJsonObject object;
    if (readJsonFile(path, &object, place)) {
        Target read = reader(object, place);
        if (found.isEmpty())
            *target = std::move(read);
    }
    *faults += found;
}

} // namespace

bool readJsonFile(const QString &path, QJsonObject *object, const DocumentPlace &place)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        place.fault(file.errorString());
        return false;
    }
    const QByteArray text = file.readAll();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        const QByteArray before = text.left(error.offset);
        place.fault(QStringLiteral("line %1, byte %2 of it: %3")
                        .arg(before.count('\n') + 1)
                        .arg(before.size() - before.lastIndexOf('\n'))
                        .arg(error.errorString()));
        return false;
    }
    if (!document.isObject())
        place.fault(QStringLiteral("expected an object"));
    *object = document.object();
    return document.isObject();
}

void Catalogue::load(const QString &folder, Database &database, QStringList *faults)
{
    Navigation navigation;
    readFile(folder, QStringLiteral("navigation.json"), &navigation, faults, readNavigation);
    m_topics = navigation.topics;
    m_namedViews = navigation.views;
    readFile(folder, QStringLiteral("blocks.json"), &m_blocks, faults,
             [&database](const QJsonObject &object, const DocumentPlace &place) {
                 return readBlocks(object, database, place);
             });
    readFile(folder, QStringLiteral("constants.json"), &m_constants, faults,
             [&database](const QJsonObject &object, const DocumentPlace &place) {
                 return readRowSource(object, database, place);
             });
    readFile(folder, QStringLiteral("lists.json"), &m_lists, faults,
             [&database](const QJsonObject &object, const DocumentPlace &place) {
                 return readLists(object, database, place);
             });
}

const RowSource *Catalogue::list(const QString &name) const
{
    const auto it = m_lists.constFind(name);
    return it == m_lists.constEnd() ? nullptr : &*it;
}

} // namespace service
