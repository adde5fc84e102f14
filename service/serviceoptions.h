#pragma once

#include "httpserver.h"

#include <QStringList>

class QCommandLineParser;

namespace service {

/// What the command line asks for.
struct ServiceOptions
{
    ServerSettings server;
    QString views;
    QString log;
    QString tokenFile;
    QString accessLog; ///< "-" is standard error, empty is none
    bool checkOnly = false;
    bool exitWithParent = false;
};

/// Tells \a parser all options with their defaults.
void addServiceOptions(QCommandLineParser &parser);

/// Reads the command line into \a options; a text that is not empty tells what is wrong with it.
QString readServiceOptions(const QCommandLineParser &parser, ServiceOptions *options);

} // namespace service
