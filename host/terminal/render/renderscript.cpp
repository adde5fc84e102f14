#include "renderscript.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace {
using Check = bool (*)(const QJsonValue &);

bool isText(const QJsonValue &value)
{
    return value.isString();
}

bool isFilledText(const QJsonValue &value)
{
    return !value.toString().isEmpty();
}

bool isWhole(const QJsonValue &value, int least)
{
    const double number = value.toDouble(-1);
    return value.isDouble() && number >= least && number <= 1e9 && std::floor(number) == number;
}

bool isCountFromZero(const QJsonValue &value)
{
    return isWhole(value, 0);
}

bool isCountFromOne(const QJsonValue &value)
{
    return isWhole(value, 1);
}

bool isScalar(const QJsonValue &value)
{
    return value.isString() || value.isDouble();
}

bool isSetting(const QJsonValue &value)
{
    const QJsonArray elements = value.toArray();
    return isScalar(value) ||
           (value.isArray() && std::all_of(elements.begin(), elements.end(),
                                           [](const auto &element) { return isScalar(element); }));
}

bool isCaptions(const QJsonValue &value)
{
    const QJsonArray elements = value.toArray();
    return !elements.isEmpty() &&
           std::all_of(elements.begin(), elements.end(), [](const auto &element) { return isText(element); });
}

bool isPageAddress(const QJsonValue &value)
{
    return value.toString().startsWith("view://", Qt::CaseInsensitive);
}

bool isFlag(const QJsonValue &value)
{
    return value.isBool();
}

bool isFileName(const QJsonValue &value)
{
    static const QRegularExpression pattern(
        "^[^/\\\\:*?\"<>|.\\x00-\\x1f][^/\\\\:*?\"<>|\\x00-\\x1f]{0,99}$");
    return pattern.match(value.toString()).hasMatch() && value.toString() != "page";
}

struct Key
{
    const char *name;
    Check accepts;
    const char *accepted; ///< what is wanted, for the fault
};

struct Word
{
    QList<Key> required;
    QList<Key> choice; ///< exactly one of them
    QList<Key> optional;
};

const QMap<QString, Word> &words()
{
    static const QMap<QString, Word> table = {
        {"open",
         {{},
          {{"node", isCaptions, "a list of captions"}, {"url", isPageAddress, "a page address, view://..."}},
          {}}},
        {"row", {{{"index", isCountFromZero, "a whole number from 0"}}, {}, {}}},
        {"link",
         {{{"row", isCountFromZero, "a whole number from 0"},
           {"column", isCountFromZero, "a whole number from 0"}},
          {},
          {}}},
        {"page", {{{"number", isCountFromOne, "a whole number from 1"}}, {}, {}}},
        {"pageSize", {{{"size", isCountFromOne, "a whole number from 1"}}, {}, {}}},
        {"filter",
         {{{"value", isSetting, "a text, a number, or a list of these"}},
          {{"field", isFilledText, "a text"}, {"caption", isFilledText, "a text"}},
          {}}},
        {"unit", {{{"text", isFilledText, "a text"}}, {}, {}}},
        {"query", {}},
        {"search", {{{"text", isText, "a text"}}, {}, {}}},
        {"check", {{{"block", isFilledText, "a text"}}, {}, {{"checked", isFlag, "true or false"}}}},
        {"tab", {{{"index", isCountFromZero, "a whole number from 0"}}, {}, {}}},
        {"sort", {{{"column", isCountFromZero, "a whole number from 0"}}, {}, {}}},
        {"skin", {{{"name", isFilledText, "a text"}}, {}, {}}},
        {"export", {}},
        {"snapshot", {{{"name", isFileName, "a name for two files, other than page"}}, {}, {}}},
    };
    return table;
}

QString quoted(const QList<Key> &keys)
{
    QStringList names;
    for (const Key &key : keys)
        names.append(QString("\"%1\"").arg(key.name));
    return names.join(" or ");
}

QString keyFault(const QJsonObject &step, const Word &word)
{
    const QList<Key> known = word.required + word.choice + word.optional;
    for (auto entry = step.begin(); entry != step.end(); ++entry) {
        const auto key =
            std::find_if(known.begin(), known.end(), [&](const Key &k) { return entry.key() == k.name; });
        if (key != known.end() && !key->accepts(entry.value()))
            return QString("\"%1\" wants %2").arg(entry.key(), key->accepted);
        if (key == known.end() && entry.key() != "do")
            return QString("\"%1\" means nothing here").arg(entry.key());
    }
    for (const Key &key : word.required) {
        if (!step.contains(key.name))
            return QString("\"%1\" is missing: %2").arg(key.name, key.accepted);
    }
    const auto given = std::count_if(word.choice.begin(), word.choice.end(),
                                     [&step](const Key &key) { return step.contains(key.name); });
    return word.choice.isEmpty() || given == 1 ? QString()
                                               : "exactly one is wanted of " + quoted(word.choice);
}

QString stepFault(const QJsonValue &value)
{
    if (!value.isObject())
        return "is no object, as {\"do\": \"query\"}";
    const QString name = value.toObject().value("do").toString();
    const auto word = words().constFind(name);
    if (word == words().constEnd())
        return QString("\"do\": \"%1\" is not one of %2").arg(name, QStringList(words().keys()).join(", "));
    const QString fault = keyFault(value.toObject(), *word);
    return fault.isEmpty() ? fault : QString("%1: %2").arg(name, fault);
}

QString placeOf(const QByteArray &text, int offset)
{
    // The parser has read on to behind what it can't take.
    const int place = qMax(0, offset - 1);
    const QByteArray before = text.left(place);
    return QString("%1:%2").arg(before.count('\n') + 1).arg(place - before.lastIndexOf('\n'));
}
} // namespace

RenderScript RenderScript::read(const QString &file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        return {{}, QString("%1: %2").arg(file, source.errorString())};
    return parse(source.readAll(), file);
}

RenderScript RenderScript::parse(const QByteArray &text, const QString &name)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        return {{}, QString("%1:%2: %3").arg(name, placeOf(text, error.offset), error.errorString())};
    if (!document.isArray())
        return {{}, QString("%1: is no array of steps").arg(name)};
    RenderScript script;
    QSet<QString> snapshots;
    for (const QJsonValue &value : document.array()) {
        QString fault = stepFault(value);
        const QString snapshot = value.toObject().value("name").toString();
        if (fault.isEmpty() && value.toObject().value("do") == "snapshot" && snapshots.contains(snapshot))
            fault = QString("snapshot: the name \"%1\" is taken by an earlier one").arg(snapshot);
        snapshots.insert(snapshot);
        if (!fault.isEmpty())
            return {{}, QString("%1: step %2: %3").arg(name).arg(script.steps.size() + 1).arg(fault)};
        script.steps.append(value.toObject());
    }
    return script;
}
