#pragma once

#include "renderscript.h"

#include <QStringList>

#include <optional>

class QCommandLineParser;

/// What \c --render and its companions ask for: pages drawn and told into files, without a window.
struct RenderOptions
{
    QStringList urls; ///< empty if nothing is to be rendered
    QString folder;
    bool isWorkbookWanted = false;
    std::optional<int> row; ///< to be selected in every page, from 0
    int timeoutMs = 60000;  ///< longest wait for a page to come to rest, after opening it and after each step
    RenderScript script;    ///< worked on every page; without steps if none was given

    bool isWanted() const { return !urls.isEmpty(); }

    static void addTo(QCommandLineParser &parser);
    /// Reads the script too. \a fault tells what is wrong with the values or the script, or is emptied.
    static RenderOptions from(const QCommandLineParser &parser, QString *fault);
};
