#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

/// What the command line asks for. An option that was not given is unset and leaves the stored setting alone.
struct Options
{
    QStringList pages;
    std::optional<QString> service;
    std::optional<QString> token;
    std::optional<QString> user;
    std::optional<QString> product;
    std::optional<QString> skin;
    std::optional<QString> language; ///< "zh" or "en"
    QStringList pluginPaths;
    QString skinPath;
    QString database;
    QString views;
    bool verbose = false;
    QString screenshot; ///< file to grab the window into; the terminal ends after it
    QSize size;
};

/// Outcome of reading the command line: options, or an exit code with the text to print.
struct ParsedOptions
{
    std::optional<Options> options;
    int exitCode = 0;
    QString text;
};

/// Reads \a arguments, the program's name included. \c --help and \c --version give exit code 0 and their
/// text, wrong usage gives 2 and a text that names the option.
ParsedOptions parseOptions(const QStringList &arguments);
