#pragma once

#include "render/renderoptions.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

/// What the command line asks for. An option that was not given is unset and leaves the stored setting alone.
struct Options
{
    QStringList pages;
    QStringList screens; ///< files of composite screens
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
    RenderOptions render; ///< the terminal ends when this is done
};

/// Outcome of reading the command line: options, or what to print instead of starting.
struct ParsedOptions
{
    enum Outcome { Start, Help, Version, WrongUsage };

    Outcome outcome = Start;
    Options options;
    QString fault; ///< names the option and what is wrong with it
};

/// Reads \a arguments, the program's name included. Needs no application object.
ParsedOptions parseOptions(const QStringList &arguments);

/// Text of \c --help. Needs an application object.
QString optionsHelp();
