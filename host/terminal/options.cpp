#include "options.h"

#include <QCommandLineParser>
#include <QRegularExpression>
#include <QUrl>

namespace {
void addOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {"page", "Open this page address instead of the home page; may be given several times.", "url"},
        {"screen", "Open the composite screen of this file; may be given several times.", "file"},
        {"service", "Address of the data service; without it the demonstration service is started.", "url"},
        {"token", "Access token for the data service.", "text"},
        {"user", "User identifier.", "text"},
        {"product", "Product identifier.", "text"},
        {"skin", "Skin for this run: white, black or mid.", "name"},
        {"language", "Language for this run: zh or en.", "code"},
        {"plugin-path", "Look for plug-ins in this folder too; may be given several times.", "folder"},
        {"skin-path", "Take the skins from this folder.", "folder"},
        {"db", "Database of the demonstration service.", "file"},
        {"views", "View documents of the demonstration service.", "folder"},
        {"verbose", "Write what the pages do to standard error."},
        {"screenshot", "Draw the window into a picture when the page stands, and end.", "file"},
        {"size", "Size of the window, 1400x900 for instance.", "WxH"},
    });
    RenderOptions::addTo(parser);
}

std::optional<QString> given(const QCommandLineParser &parser, const QString &name)
{
    return parser.isSet(name) ? std::optional<QString>(parser.value(name)) : std::nullopt;
}

/// Text that says what is wrong with the values, or an empty one.
QString faultOf(const QCommandLineParser &parser)
{
    if (!parser.positionalArguments().isEmpty() && !parser.isSet("render"))
        return QString("unexpected argument: %1").arg(parser.positionalArguments().first());
    if (parser.isSet("service")) {
        const QUrl url(parser.value("service"), QUrl::StrictMode);
        if (!url.isValid() || url.host().isEmpty() || !url.scheme().startsWith("http"))
            return QString("--service: not an http address: %1").arg(parser.value("service"));
    }
    if (parser.isSet("language") && !QStringList{"zh", "en"}.contains(parser.value("language")))
        return QString("--language: %1 is not one of zh, en").arg(parser.value("language"));
    static const QRegularExpression sizePattern("^[1-9][0-9]{1,4}x[1-9][0-9]{1,4}$");
    if (parser.isSet("size") && !sizePattern.match(parser.value("size")).hasMatch())
        return QString("--size: %1 is not of the form 1400x900").arg(parser.value("size"));
    return {};
}

QSize sizeFrom(const QString &text)
{
    const QStringList parts = text.split('x');
    return parts.size() == 2 ? QSize(parts[0].toInt(), parts[1].toInt()) : QSize();
}

Options read(const QCommandLineParser &parser)
{
    Options options;
    options.pages = parser.values("page");
    options.screens = parser.values("screen");
    options.service = given(parser, "service");
    options.token = given(parser, "token");
    options.user = given(parser, "user");
    options.product = given(parser, "product");
    options.skin = given(parser, "skin");
    options.language = given(parser, "language");
    options.pluginPaths = parser.values("plugin-path");
    options.skinPath = parser.value("skin-path");
    options.database = parser.value("db");
    options.views = parser.value("views");
    options.verbose = parser.isSet("verbose");
    options.screenshot = parser.value("screenshot");
    options.size = sizeFrom(parser.value("size"));
    return options;
}
} // namespace

ParsedOptions parseOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    addOptions(parser);

    if (!parser.parse(arguments))
        return {ParsedOptions::WrongUsage, {}, parser.errorText()};
    if (parser.isSet(help))
        return {ParsedOptions::Help, {}, {}};
    if (parser.isSet(version))
        return {ParsedOptions::Version, {}, {}};
    QString fault = faultOf(parser);
    if (!fault.isEmpty())
        return {ParsedOptions::WrongUsage, {}, fault};
    Options options = read(parser);
    options.render = RenderOptions::from(parser, &fault);
    if (!fault.isEmpty())
        return {ParsedOptions::WrongUsage, {}, fault};
    return {ParsedOptions::Start, options, {}};
}

QString optionsHelp()
{
    QCommandLineParser parser;
    parser.setApplicationDescription("Terminal for pages of financial data.");
    parser.addHelpOption();
    parser.addVersionOption();
    addOptions(parser);
    return parser.helpText();
}
