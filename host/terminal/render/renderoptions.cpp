#include "renderoptions.h"

#include <QCommandLineParser>
#include <QUrl>

#include <cmath>

namespace {
constexpr int MaximumTimeout = 24 * 3600; // seconds; ten times as many milliseconds are an int
const QStringList Companions{"out", "xlsx", "select-row", "timeout", "script"};
const QStringList Rivals{"page", "screen", "screenshot"};

QStringList urlsOf(const QCommandLineParser &parser)
{
    return parser.isSet("render") ? parser.values("render") + parser.positionalArguments() : QStringList();
}

QString urlFault(const QString &text)
{
    const QUrl url(text);
    const bool isPage =
        url.isValid() && url.scheme().compare("view", Qt::CaseInsensitive) == 0 && !url.host().isEmpty();
    return isPage ? QString()
                  : QString("--render: not a page address, as view://subjectpage?objvwid=260: %1").arg(text);
}

/// Seconds as milliseconds; none for what is no number or out of bounds.
std::optional<int> milliseconds(const QString &text)
{
    bool isNumber = false;
    const double seconds = text.toDouble(&isNumber);
    if (!isNumber || !(seconds > 0) || seconds > MaximumTimeout)
        return std::nullopt;
    return int(std::ceil(seconds * 1000));
}

std::optional<int> rowOf(const QString &text)
{
    bool isNumber = false;
    const int row = text.toInt(&isNumber);
    return isNumber && row >= 0 ? std::optional<int>(row) : std::nullopt;
}

QString companyFault(const QCommandLineParser &parser)
{
    const bool isRendering = parser.isSet("render");
    for (const QString &name : isRendering ? Rivals : Companions) {
        if (parser.isSet(name))
            return isRendering ? QString("--%1 does not go with --render").arg(name)
                               : QString("--%1 needs --render").arg(name);
    }
    if (isRendering && parser.value("out").isEmpty())
        return QString("--render needs --out, the folder for what it writes");
    return {};
}
QString faultOf(const QCommandLineParser &parser)
{
    QString fault = companyFault(parser);
    for (const QString &url : urlsOf(parser)) {
        if (fault.isEmpty())
            fault = urlFault(url);
    }
    if (!fault.isEmpty())
        return fault;
    if (parser.isSet("select-row") && !rowOf(parser.value("select-row")))
        return QString("--select-row: %1 is not a whole number from 0").arg(parser.value("select-row"));
    if (parser.isSet("timeout") && !milliseconds(parser.value("timeout")))
        return QString("--timeout: %1 is not a number of seconds from above 0 to %2")
            .arg(parser.value("timeout"))
            .arg(MaximumTimeout);
    return {};
}

} // namespace

void RenderOptions::addTo(QCommandLineParser &parser)
{
    parser.addOptions({
        {"render",
         "Draw and describe pages into files, without a window, and end; further addresses may follow.",
         "url"},
        {"out", "Folder that --render writes into.", "folder"},
        {"xlsx", "With --render: write the workbook of the main view too."},
        {"select-row", "With --render: select this row of the main table, counted from 0.", "number"},
        {"timeout", "With --render: longest wait for a page to come to rest, 60 without it.", "seconds"},
        {"script", "With --render: work each page by the steps of this file.", "file"},
    });
}

RenderOptions RenderOptions::from(const QCommandLineParser &parser, QString *fault)
{
    RenderOptions options;
    *fault = faultOf(parser);
    if (!fault->isEmpty())
        return options;
    options.urls = urlsOf(parser);
    options.folder = parser.value("out");
    options.isWorkbookWanted = parser.isSet("xlsx");
    if (parser.isSet("select-row"))
        options.row = rowOf(parser.value("select-row"));
    if (parser.isSet("timeout"))
        options.timeoutMs = milliseconds(parser.value("timeout")).value_or(options.timeoutMs);
    if (parser.isSet("script"))
        options.script = RenderScript::read(parser.value("script"));
    *fault = options.script.fault;
    return options;
}
