#pragma once

#include <QVariantMap>

/// What a composite screen keeps for a component between two runs.
///
/// | key | value |
/// |---|---|
/// | "version" | text, "1.0.0"; a state without it counts as "0.0.0" |
/// | "titleVisible", "filterVisible", "mainViewVisible", "subViewVisible", "pageBarVisible" | bool |
/// | "objVwId" | 64-bit integer, the view on show |
/// | "title" | text |
/// | "objVwIdBinder" | text, name of the global argument that selects the view; empty if none |
/// | "filterMap" | map from field to value, the component's own filter arguments |
struct TFFrameState
{
    static constexpr QLatin1String FilterVisible{"filterVisible"};
    static constexpr QLatin1String SubViewVisible{"subViewVisible"};
    static constexpr QLatin1String PageBarVisible{"pageBarVisible"};

    QString version;
    bool titleVisible = false;
    bool filterVisible = false;
    bool mainViewVisible = false;
    bool subViewVisible = false;
    bool pageBarVisible = false;
    qint64 objVwId = 0;
    QString title;
    QString binderKey;
    QVariantMap filterMap;

    /// Reads what is usable: a key that is missing or of a wrong type gives false, 0 or an empty value. The
    /// log tells of each, of keys that are not known, and of a version other than that of write().
    static TFFrameState read(const QVariantMap &map);
    /// Writes all keys; others in \a map stay. The version is always the present one.
    void write(QVariantMap &map) const;
    /// A state of before there were versions keeps no filter arguments.
    bool hasFilterMap() const;
};
