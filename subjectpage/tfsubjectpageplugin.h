#pragma once

#include "tfcore/iplugin.h"

/// What the host loads: registers the page type under "TFApp.SUBJECT" and does nothing else.
class TFSubjectPagePlugin : public IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TF_APP_PLUGIN_IID FILE "subjectpage.json")

public:
    bool initialize(const QStringList &arguments, QString *errorString) override;
    void extensionsInitialized() override;
};
