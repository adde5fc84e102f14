#pragma once

#include <QLoggingCategory>

/// Logging categories, one a subsystem. Debug lines are off by default and cost nothing then.
Q_DECLARE_LOGGING_CATEGORY(lcPage)   ///< subject.page: entry, frame, containers, trees
Q_DECLARE_LOGGING_CATEGORY(lcNet)    ///< subject.net: requests and replies
Q_DECLARE_LOGGING_CATEGORY(lcConfig) ///< subject.config: configuration documents
Q_DECLARE_LOGGING_CATEGORY(lcTable)  ///< subject.table: parser, model, grid, table widget
Q_DECLARE_LOGGING_CATEGORY(lcFilter) ///< subject.filter: filter bar and expressions
Q_DECLARE_LOGGING_CATEGORY(lcChart)  ///< subject.chart
Q_DECLARE_LOGGING_CATEGORY(lcExport) ///< subject.export
Q_DECLARE_LOGGING_CATEGORY(lcScreen) ///< subject.screen: component for composite screens
