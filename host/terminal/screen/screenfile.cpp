#include "screenfile.h"

#include "terminallog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {
/// Far beyond any screen.
constexpr qint64 MaxSize = 16 << 20;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ScreenFile)
};

QString writeFile(const QString &path, const QByteArray &text)
{
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return {};
    return Texts::tr("%1: %2").arg(path, file.errorString());
}
} // namespace

ScreenFile::ScreenFile(const QString &path)
    : m_path(QFileInfo(path).absoluteFilePath())
{}

ScreenFormat::Reading ScreenFile::load()
{
    m_known.clear();
    const QFileInfo info(m_path);
    if (!info.isFile())
        return {{}, {Texts::tr("not an ordinary file")}};
    if (info.size() > MaxSize)
        return {{}, {Texts::tr("too large for a composite screen")}};
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, {file.errorString()}};
    const QByteArray text = file.readAll();
    ScreenFormat::Reading reading = ScreenFormat::read(text);
    if (reading.problems.isEmpty())
        m_known = text;
    return reading;
}

QString ScreenFile::save(const ScreenState &state)
{
    m_keptAside.clear();
    QStringList problems;
    const QByteArray text = ScreenFormat::write(state, &problems);
    for (const QString &problem : qAsConst(problems))
        qCWarning(lcScreens).noquote() << m_path << problem;
    QFile present(m_path);
    if (present.exists()) {
        if (!QFileInfo(m_path).isFile())
            return Texts::tr("%1: %2").arg(m_path, Texts::tr("not an ordinary file"));
        if (!present.open(QIODevice::ReadOnly))
            return Texts::tr("%1: %2").arg(m_path, present.errorString());
        const QByteArray there = present.readAll();
        if (there == text) {
            m_known = text;
            return {};
        }
        const QString fault = there == m_known ? QString() : keepAside(there);
        if (!fault.isEmpty())
            return fault;
    }
    const QString fault = writeFile(m_path, text);
    if (fault.isEmpty())
        m_known = text;
    return fault;
}

QString ScreenFile::keepAside(const QByteArray &text)
{
    QString name;
    for (int i = 1; name.isEmpty() || QFile::exists(name); ++i)
        name = QString("%1.kept-%2").arg(m_path).arg(i);
    const QString fault = writeFile(name, text);
    if (fault.isEmpty()) {
        m_keptAside = name;
        qCInfo(lcScreens).noquote() << m_path << "is not what this terminal wrote; it is kept as" << name;
    }
    return fault;
}
