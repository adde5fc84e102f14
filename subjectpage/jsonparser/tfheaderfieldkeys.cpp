#include "tfheaderfieldkeys.h"

#include "tfjsontext.h"

#include <QJsonObject>

namespace {
using Info = HeaderFieldInfo;

enum Use { DisplaySetting, Structural };

template <typename Value> struct Key
{
    QLatin1String upper;
    QLatin1String lower;
    Value Info::*member;
    Use use;
};

constexpr Key<QString> Texts[] = {
    {QLatin1String("ColumnType"), QLatin1String("columnType"), &Info::columnType, DisplaySetting},
    {QLatin1String("OwnerBand"), QLatin1String("ownerBand"), &Info::ownerBand, Structural},
    {QLatin1String("FieldName"), QLatin1String("fieldName"), &Info::fieldName, DisplaySetting},
    {QLatin1String("Url"), QLatin1String("url"), &Info::url, DisplaySetting},
    {QLatin1String("ValueType"), QLatin1String("valueType"), &Info::valueType, DisplaySetting},
    {QLatin1String("UnboundExpression"), QLatin1String("unboundExpression"), &Info::unboundExpression,
     DisplaySetting},
    {QLatin1String("ShowUnit"), QLatin1String("showUnit"), &Info::showUnit, DisplaySetting},
    {QLatin1String("Caption"), QLatin1String("caption"), &Info::caption, DisplaySetting},
    {QLatin1String("FormatString"), QLatin1String("formatString"), &Info::formatString, DisplaySetting},
    {QLatin1String("CellStyleExpression"), QLatin1String("cellStyleExpression"), &Info::cellStyleExpression,
     DisplaySetting},
    {QLatin1String("StatExpression"), QLatin1String("statExpression"), &Info::statExpression, Structural},
};

constexpr Key<int> Integers[] = {
    {QLatin1String("UnitCategory"), QLatin1String("unitCategory"), &Info::unitCategory, DisplaySetting},
    {QLatin1String("CaptionShowType"), QLatin1String("captionShowType"), &Info::captionShowType,
     DisplaySetting},
    {QLatin1String("TextAlignment"), QLatin1String("textAlignment"), &Info::textAlignment, DisplaySetting},
    {QLatin1String("ShowStatus"), QLatin1String("showStatus"), &Info::showStatus, Structural},
    {QLatin1String("SN"), QLatin1String("sn"), &Info::sn, DisplaySetting},
    {QLatin1String("Level"), QLatin1String("level"), &Info::level, DisplaySetting},
};

/// Numbers that lose their fraction.
constexpr Key<qint64> Factors[] = {
    {QLatin1String("PrevUnitFactor"), QLatin1String("prevUnitFactor"), &Info::prevUnitFactor, DisplaySetting},
    {QLatin1String("ShowUnitFactor"), QLatin1String("showUnitFactor"), &Info::showUnitFactor, DisplaySetting},
};

constexpr Key<int> Width = {QLatin1String("Width"), QLatin1String("width"), &Info::width, DisplaySetting};

constexpr Key<bool> Flags[] = {
    {QLatin1String("Visible"), QLatin1String("visible"), &Info::visible, DisplaySetting},
    {QLatin1String("NoSort"), QLatin1String("noSort"), &Info::noSort, DisplaySetting},
};

class Reader
{
public:
    Reader(const QJsonObject &object, bool upperCaseKeys, bool displaySettingsOnly)
        : m_object(object)
        , m_upperCaseKeys(upperCaseKeys)
        , m_displaySettingsOnly(displaySettingsOnly)
    {}

    Info info() const
    {
        Info info;
        readAll(Texts, info, [](const QJsonValue &value) { return value.toString(); });
        readAll(Integers, info, [](const QJsonValue &value) { return value.toInt(); });
        readAll(Factors, info, TFJsonText::toInt64);
        readAll(Flags, info, [](const QJsonValue &value) { return value.toBool(); });
        info.width = TFJsonText::toInt32(valueOf(Width));
        return info;
    }

private:
    template <typename Value> QJsonValue valueOf(const Key<Value> &key) const
    {
        return m_object.value(m_upperCaseKeys ? key.upper : key.lower);
    }

    template <typename Value, size_t Count, typename Convert>
    void readAll(const Key<Value> (&keys)[Count], Info &info, Convert convert) const
    {
        for (const Key<Value> &key : keys) {
            if (!m_displaySettingsOnly || key.use == DisplaySetting)
                info.*key.member = convert(valueOf(key));
        }
    }

    const QJsonObject &m_object;
    bool m_upperCaseKeys;
    bool m_displaySettingsOnly;
};
} // namespace

HeaderFieldInfo TFHeaderFieldKeys::read(const QJsonObject &object, bool upperCaseKeys)
{
    return Reader(object, upperCaseKeys, false).info();
}

HeaderFieldInfo TFHeaderFieldKeys::readDisplaySettings(const QJsonObject &object)
{
    return Reader(object, true, true).info();
}
