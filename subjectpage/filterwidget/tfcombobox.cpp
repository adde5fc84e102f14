#include "tfcombobox.h"

#include "mulittable/tfunits.h"
#include "records/tfcategories.h"
#include "tfcacheconfig.h"
#include "tffilterdefaults.h"
#include "tffocusdelegate.h"
#include "tfremotelist.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>

namespace {
const QLatin1String UnitListClass("UnitFactorCombobox");
const QLatin1String ProvinceField("PROVINCE");
const QString Unchosen = QStringLiteral("未选择");
constexpr int NameMargin = 80;
constexpr int Growth = 20;
} // namespace

TFComboBox::TFComboBox(const TFTableModelData::FilterData &row, QWidget *parent)
    : TFBaseFilterWidget(row, parent)
    , m_box(new QComboBox(this))
    , m_dm(this)
{
    m_box->setItemDelegate(new TFFocusDelegate(m_box));
    QLabel *label = makeLabel();
    label->setBuddy(m_box);
    QHBoxLayout *layout = makeLayout(6);
    layout->addWidget(label);
    layout->addWidget(m_box);
    connect(this, &TFComboBox::signalItemDataUpdate, this, &TFComboBox::slotOnItemDataUpdate);
    createConnects();
    fill();
}

void TFComboBox::createConnects()
{
    connect(m_box, &QComboBox::textActivated, this, [this](const QString &text) {
        qCDebug(lcFilter) << " createConnects text " << text;
        emit signalCurrentIndexChanged(TFUnits::unitCodeOfName(text), m_unitCategory);
    });
}

void TFComboBox::requestList()
{
    m_dm.startRequest(TFRemoteList::request(row()), [this](bool isOk, const QByteArray &data) {
        if (isOk)
            emit signalItemDataUpdate(TFRemoteList::entries(data));
    });
}

void TFComboBox::fill()
{
    if (!row().DataSourceName.isEmpty()) {
        requestList();
    } else {
        for (const auto &pair : TFFilterDefaults::nameValues(row().NameValues))
            m_literals.insert(pair.first, pair.second);
    }
    if (row().ClassName == UnitListClass && m_literals.isEmpty()) {
        fillUnits();
    } else if (usesCachedCodes()) {
        if (!fillCachedCodes())
            return;
    } else {
        m_box->addItems(m_literals.keys());
    }
    selectDefault();
    showCaption();
}

void TFComboBox::fillUnits()
{
    // A unit list is connected twice, so that each choice signals twice.
    createConnects();
    m_box->clear();
    for (const TFUnits::Unit &unit : TFUnits::unitsOfCategory(row().UnitCategory))
        m_box->addItem(unit.unitName);
    m_isUnitList = true;
    m_unitCategory = row().UnitCategory;
}

bool TFComboBox::usesCachedCodes() const
{
    return row().FieldName == QLatin1String("AREA") || row().FieldName == QLatin1String("CST_NUM");
}

bool TFComboBox::fillCachedCodes()
{
    m_literals.clear();
    const QList<TFCacheRecord> records = TFCacheConfig::instance()->records(row().DataSource, row().Filter);
    for (const TFCacheRecord &record : records)
        m_box->addItem(record.name);
    return !records.isEmpty();
}

void TFComboBox::selectDefault()
{
    const QString wanted = TFFilterDefaults::withoutEquals(row().DefualtValue);
    if (m_isUnitList) {
        setCurrentText(wanted);
        return;
    }
    for (auto entry = m_literals.constBegin(); entry != m_literals.constEnd(); ++entry) {
        if (entry.value().toString() == wanted || entry.key() == wanted) {
            m_box->setCurrentText(entry.key());
            return;
        }
    }
}

void TFComboBox::slotOnItemDataUpdate(QMap<QString, QString> data)
{
    m_box->addItem(Unchosen);
    int widest = 0;
    for (auto entry = data.constBegin(); entry != data.constEnd(); ++entry) {
        m_box->addItem(entry.key());
        widest = qMax(widest, m_box->fontMetrics().horizontalAdvance(entry.key()));
    }
    const int wanted = widest + NameMargin;
    m_box->setFixedWidth(wanted < m_box->width() ? m_box->width() + Growth : wanted);
    takeAsDefault();
}

QVariant TFComboBox::chosenValue() const
{
    const QString text = m_box->currentText();
    if (row().FieldName == ProvinceField)
        return text;
    if (!usesCachedCodes())
        return m_literals.value(text);
    const QList<TFCacheRecord> records = TFCacheConfig::instance()->records(row().DataSource, row().Filter);
    const auto found = std::find_if(records.begin(), records.end(),
                                    [&text](const TFCacheRecord &record) { return record.name == text; });
    return found == records.end() ? QString(QLatin1String("")) : found->value;
}

FilterParam::Cntrl TFComboBox::getCntrl() const
{
    FilterParam::Cntrl cntrl = described();
    cntrl.value = chosenValue();
    return cntrl;
}

void TFComboBox::setCurrentText(const QString &text)
{
    // A document writes the units by the names of the table; the box lists those of the catalogue.
    const bool isSourceName = m_isUnitList && m_box->findText(text) < 0;
    m_box->setCurrentText(isSourceName ? QObject::tr(text.toUtf8().constData()) : text);
}
