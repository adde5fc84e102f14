#include "pagetab.h"

#include "pagefactory.h"
#include "terminallog.h"
#include "tfcore/itfabstractpage.h"
#include "tfcore/itfinspection.h"

#include <QLabel>
#include <QMetaMethod>
#include <QVBoxLayout>

PageTab::PageTab(const PageFactory *factory, const QUrl &url, QWidget *parent)
    : TerminalTab(parent)
    , m_factory(factory)
    , m_url(url)
    , m_layout(new QVBoxLayout(this))
{
    setObjectName("PageTab");
    m_layout->setContentsMargins(0, 0, 0, 0);
}

QString PageTab::title() const
{
    return m_title.isEmpty() ? m_url.toString() : m_title;
}

ITFInspection *PageTab::inspection() const
{
    if (!m_page)
        return nullptr;
    if (auto *own = qobject_cast<ITFInspection *>(m_page.data()))
        return own;
    for (QObject *child : m_page->children()) {
        if (auto *inspection = qobject_cast<ITFInspection *>(child))
            return inspection;
    }
    return nullptr;
}

void PageTab::open()
{
    const MadePage made = m_factory->make(m_url, this);
    if (!made.error.isEmpty()) {
        qCWarning(lcTerminal).noquote() << made.error;
        auto *fault = new QLabel(made.error, this);
        fault->setObjectName("PageFault");
        fault->setAlignment(Qt::AlignCenter);
        fault->setWordWrap(true);
        fault->setTextInteractionFlags(Qt::TextSelectableByMouse);
        m_page = fault;
        m_layout->addWidget(fault);
        return;
    }
    m_page = made.widget;
    m_layout->addWidget(made.widget);
    listenTo(made.widget, made.page);
    made.page->init(m_url, QVariant());
    made.widget->setFocus();
}

void PageTab::reload()
{
    delete m_page;
    open();
}

void PageTab::listenTo(QWidget *widget, ITFAbstractPage *page)
{
    connectSignal(widget, page->signalWindowTitleChanged(), "setPageTitle");
    connectSignal(widget, page->signalWindowIconChanged(), "setPageIcon");
    connectSignal(widget, page->signalUrlChanged(), "setPageUrl");
    connectSignal(widget, page->signalOpenNewUrl(), "openUrl");
}

/// Connects the signal that \a signature names ("2name(types)") to that overload of \a slotName which takes
/// its arguments.
void PageTab::connectSignal(QWidget *widget, const QString &signature, const QByteArray &slotName)
{
    if (signature.isEmpty())
        return;
    const QByteArray plain = QMetaObject::normalizedSignature(signature.mid(1).toUtf8().constData());
    const int signal = widget->metaObject()->indexOfSignal(plain.constData());
    if (signal >= 0) {
        const QMetaMethod from = widget->metaObject()->method(signal);
        for (int i = metaObject()->methodOffset(); i < metaObject()->methodCount(); ++i) {
            const QMetaMethod to = metaObject()->method(i);
            if (to.name() == slotName && QMetaObject::checkConnectArgs(from, to)) {
                connect(widget, from, this, to);
                return;
            }
        }
    }
    qCWarning(lcTerminal).noquote() << widget->metaObject()->className() << "names the signal" << signature
                                    << "which cannot be listened to";
}

void PageTab::setPageTitle(const QString &title)
{
    m_title = title;
    emit titleChanged(this->title());
}

void PageTab::setPageIcon(const QIcon &icon)
{
    m_icon = icon;
    emit iconChanged(icon);
}

void PageTab::setPageUrl(const QUrl &url)
{
    m_url = url;
    emit urlChanged(url);
}

void PageTab::setPageUrl(const QString &url)
{
    setPageUrl(QUrl(url));
}

void PageTab::openUrl(const QUrl &url)
{
    emit openRequested(url.toString());
}

void PageTab::openUrl(const QString &url)
{
    emit openRequested(url);
}
