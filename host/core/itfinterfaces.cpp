#include "tfcore/itfabstractpage.h"
#include "tfcore/itfinspection.h"
#include "tfcore/itfnavigation.h"

ITFInterface::~ITFInterface() = default;

ITFInspection::~ITFInspection() = default;

void ITFAbstractPage::init(const QUrl &, QVariant)
{}

void ITFAbstractPage::refresh(const QUrl &, QVariant)
{}

QString ITFAbstractPage::signalWindowTitleChanged()
{
    return {};
}

QString ITFAbstractPage::signalUrlChanged()
{
    return {};
}

QString ITFAbstractPage::signalWindowIconChanged()
{
    return {};
}

QString ITFAbstractPage::signalLoadProgressChanged()
{
    return {};
}

QString ITFAbstractPage::signalOpenNewUrl()
{
    return {};
}

QString ITFAbstractPage::url()
{
    return {};
}

QIcon ITFAbstractPage::icon()
{
    return {};
}

QString ITFAbstractPage::title()
{
    return {};
}

QDateTime ITFAbstractPage::lastVisited()
{
    return {};
}

void ITFAbstractPage::setUrl(const QString &)
{}

void ITFAbstractPage::setIcon(QIcon)
{}

void ITFAbstractPage::setTitle(const QString &)
{}

bool ITFNavigation::hasBack()
{
    return false;
}

void ITFNavigation::goBack()
{}

bool ITFNavigation::hasForward()
{
    return false;
}

void ITFNavigation::goForward()
{}

void ITFNavigation::goHome()
{}

void ITFNavigation::stop()
{}

QList<QUrl> ITFNavigation::getForwardList()
{
    return {};
}

QList<QUrl> ITFNavigation::getBackList()
{
    return {};
}

void ITFNavigation::refresh(const QUrl &, QVariant)
{}

QString ITFNavigation::signalNavIconEnabledChanged()
{
    return {};
}
