#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QString>

#include <algorithm>

/// The description of a rendered page without what differs from run to run: times, sizes, widths that follow
/// the font, the order in which replies came. Long lists are cut.
class RenderedPage
{
public:
    explicit RenderedPage(const QJsonObject &page)
        : m_page(page)
    {}

    /// A line for each part down to the third level, so that a difference is found.
    QByteArray text() const { return written(cleaned(m_page).toObject(), 0) + '\n'; }

private:
    static QByteArray compact(const QJsonValue &value)
    {
        const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        return text.mid(1, text.size() - 2);
    }

    static QJsonArray sorted(const QJsonArray &array, bool isUnique)
    {
        QList<QByteArray> texts;
        for (const QJsonValue &value : array)
            texts.append(compact(value));
        std::sort(texts.begin(), texts.end());
        if (isUnique)
            texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
        return QJsonDocument::fromJson('[' + texts.join(',') + ']').array();
    }

    static QJsonArray cut(const QJsonArray &array)
    {
        constexpr int Kept = 3;
        QJsonArray kept;
        for (int i = 0; i < array.size() && i < Kept; ++i)
            kept.append(array.at(i));
        if (array.size() > Kept)
            kept.append(QString("%1 in all").arg(array.size()));
        return kept;
    }

    static QJsonValue cleanedMember(const QString &key, const QJsonValue &value)
    {
        static const QSet<QString> cutKeys{"rows", "data", "xData"};
        if (key == "status")
            return value.toString().startsWith("耗时") ? QJsonValue("耗时") : value;
        const QJsonValue clean = cleaned(value);
        if (!clean.isArray())
            return clean;
        // Tabs come in the order of the replies; bands and nodes stand as they are told.
        const bool isViews = key == "children" && clean.toArray().first().toObject().contains("kind");
        if (key == "filterBlock" || key == "requests" || isViews)
            return sorted(clean.toArray(), key == "requests");
        return cutKeys.contains(key) ? cut(clean.toArray()) : clean;
    }

    static QJsonValue cleaned(const QJsonValue &value)
    {
        static const QSet<QString> volatileKeys{"ms", "bytes", "width", "sent"};
        if (value.isArray()) {
            QJsonArray array;
            for (const QJsonValue &element : value.toArray())
                array.append(cleaned(element));
            return array;
        }
        if (!value.isObject())
            return value;
        QJsonObject source = value.toObject();
        if (source.value("key") == "filterBlock")
            source.insert("value", sorted(source.value("value").toArray(), false));
        QJsonObject object;
        for (auto member = source.begin(); member != source.end(); ++member) {
            if (!volatileKeys.contains(member.key()))
                object.insert(member.key(), cleanedMember(member.key(), member.value()));
        }
        return object;
    }

    static QByteArray written(const QJsonValue &value, int depth)
    {
        constexpr int Levels = 3;
        const QJsonObject object = value.toObject();
        const QJsonArray array = value.toArray();
        if (depth == Levels || (object.isEmpty() && array.isEmpty()))
            return compact(value);
        QList<QByteArray> lines;
        const QByteArray indent(depth + 1, ' ');
        for (auto member = object.begin(); member != object.end(); ++member)
            lines.append(indent + '"' + member.key().toUtf8() + "\": " + written(member.value(), depth + 1));
        for (const QJsonValue &element : array)
            lines.append(indent + written(element, depth + 1));
        const QByteArray body = lines.join(",\n") + '\n' + indent.mid(1);
        return value.isObject() ? "{\n" + body + '}' : "[\n" + body + ']';
    }

    QJsonObject m_page;
};
