#include "tfcategories.h"

Q_LOGGING_CATEGORY(lcPage, "subject.page", QtInfoMsg)
Q_LOGGING_CATEGORY(lcNet, "subject.net", QtInfoMsg)
Q_LOGGING_CATEGORY(lcConfig, "subject.config", QtInfoMsg)
Q_LOGGING_CATEGORY(lcTable, "subject.table", QtInfoMsg)
Q_LOGGING_CATEGORY(lcFilter, "subject.filter", QtInfoMsg)
Q_LOGGING_CATEGORY(lcChart, "subject.chart", QtInfoMsg)
Q_LOGGING_CATEGORY(lcExport, "subject.export", QtInfoMsg)
Q_LOGGING_CATEGORY(lcScreen, "subject.screen", QtInfoMsg)
