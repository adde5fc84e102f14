#include "tfobjectviewconfigtable.h"

#include "tfheaderfieldkeys.h"
#include "tftablenames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVariant>

namespace {
constexpr QLatin1String TypeKey("prop_typ");
constexpr QLatin1String ViewKey("obj_vw_id");
constexpr QLatin1String NameKey("obj_prop_name");
constexpr QLatin1String CaptionKey("obj_prop_cap");
constexpr QLatin1String StatusKey("vw_sts");
constexpr QLatin1String FormatKey("vw_fmt");
constexpr QLatin1String DefaultKey("dft_val");
constexpr QLatin1String NumberKey("prop_sn");
constexpr QLatin1String ConversionKey("cnv_cfg");
constexpr QLatin1String SettingsKey("ots_cfg");

const QString NoView = QStringLiteral("-1");
const QString Visible = QStringLiteral("1");
const QString AlsoVisible = QStringLiteral("6");

TFObjectViewConfigTable::Field readField(const QJsonObject &object)
{
    const auto text = [&object](QLatin1String key) { return object.value(key).toVariant().toString(); };
    TFObjectViewConfigTable::Field field;
    field.propTyp = text(TypeKey);
    field.objVwId = object.contains(ViewKey) ? text(ViewKey) : NoView;
    field.objPropName = text(NameKey);
    field.objPropCap = text(CaptionKey);
    field.vwSts = text(StatusKey);
    field.vwFmt = text(FormatKey);
    field.dftVal = text(DefaultKey);
    field.propSn = text(NumberKey);
    field.cnvCfg = text(ConversionKey);
    const QByteArray settings = object.value(SettingsKey).toVariant().toByteArray();
    field.info = TFHeaderFieldKeys::readDisplaySettings(QJsonDocument::fromJson(settings).object());
    return field;
}
} // namespace

void TFObjectViewConfigTable::initWith(const QJsonValue &value)
{
    m_fields.clear();
    m_indexOfName.clear();
    const QJsonArray elements = value.toArray();
    for (const QJsonValue &element : elements) {
        if (!element.isObject())
            continue;
        m_fields.append(readField(element.toObject()));
        const QString &name = m_fields.last().objPropName;
        if (!m_indexOfName.contains(name))
            m_indexOfName.insert(name, m_fields.size() - 1);
    }
}

int TFObjectViewConfigTable::tableType() const
{
    return TFTableId::ObjectViewConfig;
}

const TFObjectViewConfigTable::Field *TFObjectViewConfigTable::find(const QString &fieldName) const
{
    const int index = m_indexOfName.value(fieldName, -1);
    return index < 0 ? nullptr : &m_fields.at(index);
}

HeaderFieldInfo TFObjectViewConfigTable::headerFieldInfo(const QString &fieldName) const
{
    const Field *field = find(fieldName);
    return field ? field->info : HeaderFieldInfo();
}

bool TFObjectViewConfigTable::isFieldVisible(const QString &fieldName) const
{
    const Field *field = find(fieldName);
    return !field || field->vwSts == Visible || field->vwSts == AlsoVisible;
}
