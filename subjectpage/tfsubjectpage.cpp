#include "tfsubjectpage.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyleOption>
#include <QUrlQuery>

#include "inspect/tfpageinspection.h"
#include "records/tfcategories.h"
#include "tfcore/tfcore.h"
#include "tfmenucfg.h"
#include "tfqsscommon.h"
#include "tfsubjectmainframe.h"

namespace {
const QString pageScheme = QStringLiteral("view");
const QString pageWord = QStringLiteral("subjectpage");

// Keys of the page URL's query.
const QString keyPNodeCode = QStringLiteral("pnodecode");
const QString keyNodeCode = QStringLiteral("nodecode");
const QString keyObjVwId = QStringLiteral("objvwid");
const QString keyTitle = QStringLiteral("title");

constexpr char pageUrlProperty[] = "pageUrl";

QString valueOf(const QUrlQuery &query, const QString &key)
{
    return query.queryItemValue(key, QUrl::FullyDecoded);
}
} // namespace

TFSubjectPage::TFSubjectPage(QWidget *parent)
    : QWidget(parent)
    , m_mainFrame(new TFSubjectMainFrame(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_mainFrame);
    setLayout(layout);
    TFCore::instance()->addStyle2View(this, QStringLiteral("subject/subject.css"));
    auto *inspection = new TFPageInspection(this, m_mainFrame);
    connect(this, qOverload<QString>(&TFSubjectPage::signalWindowTitleChanged), inspection,
            &TFPageInspection::setWindowTitle);
}

TFSubjectPage::~TFSubjectPage()
{
    qCDebug(lcPage) << "subjectpage closed,url: " << property(pageUrlProperty).toString();
}

void TFSubjectPage::init(const QUrl &url, QVariant)
{
    qCDebug(lcPage) << "subjectpage init,url: " << url;
    if (!parseUrl(url))
        return;
    setUrl(url.toString());
    m_mainFrame->refresh();
}

bool TFSubjectPage::parseUrl(const QUrl &url)
{
    const bool isPage = url.scheme().compare(pageScheme, Qt::CaseInsensitive) == 0 &&
                        url.host(QUrl::FullyDecoded).contains(pageWord, Qt::CaseInsensitive);
    if (!isPage) {
        qCWarning(lcPage) << "url is unrecognizable";
        return false;
    }
    const QUrlQuery query(url.query().toLower());
    m_mainFrame->setNodeCode(valueOf(query, keyNodeCode));
    m_mainFrame->setObjVwId(valueOf(query, keyObjVwId));
    readTopic(query);
    slotChangeWindowTitle(valueOf(query, keyTitle));
    keepItems(query);
    return true;
}

void TFSubjectPage::readTopic(const QUrlQuery &query)
{
    const TFMenuCfg *menu = TFMenuCfg::instance();
    const int pNodeCode = valueOf(query, keyPNodeCode).toInt();
    m_mainFrame->setPNodeCode(pNodeCode != 0 ? pNodeCode : menu->topicOfView(valueOf(query, keyObjVwId)));
    const QString title = valueOf(query, keyTitle);
    // The name goes by the code as the URL has it, not by the one that was found for the view.
    m_mainFrame->setCaption(title.isEmpty() ? menu->topicName(pNodeCode) : title);
}

void TFSubjectPage::keepItems(const QUrlQuery &query)
{
    QMap<QString, QVariant> arguments;
    const auto items = query.queryItems(QUrl::FullyDecoded);
    for (const auto &item : items) {
        qCDebug(lcPage) << "setProperty:" << item;
        arguments.insert(item.first, item.second);
        const QByteArray name = item.first.toLocal8Bit();
        // A page URL must not reach the widget's own properties, such as "enabled".
        if (metaObject()->indexOfProperty(name) < 0)
            setProperty(name, item.second);
    }
    m_mainFrame->setF9Arguments(arguments);
}

void TFSubjectPage::slotChangeWindowTitle(QString title)
{
    const QString caption = m_mainFrame->caption();
    if (caption != title)
        title = title.isEmpty() ? caption : caption + QLatin1Char(':') + title;
    emit signalWindowTitleChanged(title);
    emit signalWindowIconChanged(
        QIcon(TFCore::instance()->getCurrentSkinPath(QStringLiteral("subject.png"))));
}

QString TFSubjectPage::signalWindowTitleChanged()
{
    return QStringLiteral("2signalWindowTitleChanged(QString)");
}

QString TFSubjectPage::signalWindowIconChanged()
{
    return QStringLiteral("2signalWindowIconChanged(QIcon)");
}

QString TFSubjectPage::url()
{
    return property(pageUrlProperty).toString();
}

void TFSubjectPage::setUrl(const QString &url)
{
    setProperty(pageUrlProperty, url);
    m_mainFrame->setProperty(pageUrlProperty, url);
}

void TFSubjectPage::applySkinStyle(const QVariant &style)
{
    if (style.isValid())
        setStyleSheet(style.toString());
}

void TFSubjectPage::setHeaderBorderColor(const QColor &color)
{
    m_headerBorderColor = color;
    TFQssCommon::instance()->setHeaderBorderColor(color);
}

void TFSubjectPage::setHeaderSplitColor(const QColor &color)
{
    m_headerSplitColor = color;
    TFQssCommon::instance()->setHeaderSplitColor(color);
}

void TFSubjectPage::setHighlightColor(const QColor &color)
{
    m_highlightColor = color;
    TFQssCommon::instance()->setHighlightColor(color);
}

void TFSubjectPage::paintEvent(QPaintEvent *)
{
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
