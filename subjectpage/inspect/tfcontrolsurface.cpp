#include "tfcontrolsurface.h"

#include "filterwidget/tfbasefilterwidget.h"
#include "tfcontrolparts.h"

#include <QJsonArray>
#include <QJsonValue>
#include <QToolButton>

#include <algorithm>

namespace {
/// Texts of a value: of the elements of a list, or of the value itself.
QStringList textsOf(const QJsonValue &value)
{
    QStringList texts;
    const QJsonArray elements = value.isArray() ? value.toArray() : QJsonArray{value};
    for (const QJsonValue &element : elements)
        texts.append(element.toVariant().toString());
    return texts;
}
} // namespace

TFControlSurface::TFControlSurface(TFBaseFilterWidget *control)
    : m_control(control)
{
    const QList<QWidget *> children = control->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    std::copy_if(children.begin(), children.end(), std::back_inserter(m_parts), TFControlParts::isPart);
}

QString TFControlSurface::text() const
{
    QStringList texts;
    for (const QWidget *part : m_parts)
        texts.append(TFControlParts::text(part));
    return texts.join(QLatin1Char(' '));
}

QStringList TFControlSurface::entries() const
{
    QStringList entries;
    for (const QWidget *part : m_parts)
        entries += TFControlParts::entries(part);
    return entries;
}

QStringList TFControlSurface::checked() const
{
    QStringList checked;
    for (const QWidget *part : m_parts)
        checked += TFControlParts::checked(part);
    return checked;
}

QList<QPair<QWidget *, QString>> TFControlSurface::assigned(const QJsonValue &value, QString *reason) const
{
    QStringList texts = textsOf(value);
    if (m_parts.size() > 1 && texts.size() != m_parts.size())
        texts = texts.join(QLatin1Char(' ')).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (m_parts.isEmpty() || texts.size() != m_parts.size()) {
        *reason = m_parts.isEmpty() ? QStringLiteral("the control has nothing to set")
                                    : QStringLiteral("the control takes %1 value(s), %2 given")
                                          .arg(m_parts.size())
                                          .arg(texts.size());
        return {};
    }
    QList<QPair<QWidget *, QString>> assigned;
    for (int i = 0; i < m_parts.size(); ++i) {
        *reason = TFControlParts::refusal(m_parts.at(i), texts.at(i));
        if (!reason->isEmpty())
            return {};
        assigned.append({m_parts.at(i), texts.at(i)});
    }
    return assigned;
}

bool TFControlSurface::setValue(const QJsonValue &value, QString *reason)
{
    auto *button = m_parts.size() == 1 ? qobject_cast<QToolButton *>(m_parts.first()) : nullptr;
    if (button && TFControlParts::hasTicks(button))
        return setTicks(button, value, reason);
    const auto parts = assigned(value, reason);
    if (parts.isEmpty())
        return false;
    QStringList before;
    for (const auto &part : parts) {
        before.append(TFControlParts::text(part.first));
        TFControlParts::set(part.first, part.second);
    }
    const bool isTaken = std::all_of(parts.begin(), parts.end(), [](const QPair<QWidget *, QString> &part) {
        return TFControlParts::text(part.first) == part.second;
    });
    for (int i = 0; !isTaken && i < parts.size(); ++i)
        TFControlParts::set(parts.at(i).first, before.at(i));
    if (!isTaken)
        *reason =
            QStringLiteral("the control does not take %1 now").arg(textsOf(value).join(QStringLiteral(", ")));
    return isTaken;
}

bool TFControlSurface::setTicks(QToolButton *button, const QJsonValue &value, QString *reason)
{
    const QStringList wanted = textsOf(value);
    for (const QString &text : wanted) {
        *reason = TFControlParts::refusal(button, text);
        if (!reason->isEmpty())
            return false;
    }
    TFControlParts::setTicks(button, wanted);
    return true;
}

bool TFControlSurface::press()
{
    auto *button = m_parts.size() == 1 ? qobject_cast<QToolButton *>(m_parts.first()) : nullptr;
    if (!button || !button->isEnabled() || m_control->isHidden())
        return false;
    button->click();
    return true;
}
