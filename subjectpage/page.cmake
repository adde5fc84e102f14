# Files at the top of the module: page shell, views, trees, dialogs.

# Common support.
target_sources(subjectcore PRIVATE
    tftoolsfunc.cpp tftoolsfunc.h
    tfqsscommon.cpp tfqsscommon.h
)
target_sources(subjectui PRIVATE
    tfmessagebox.cpp tfmessagebox.h
    resources/messagebox.qrc
    tftranslations.cpp tftranslations.h
)

# The navigation trees, the menu and the table of constants.
target_sources(subjectcore PRIVATE
    filterwidget/tfcacheconfig.cpp filterwidget/tfcacheconfig.h
    tfmenucfg.cpp tfmenucfg.h
    resources/subjectmenu.qrc
)
target_sources(subjectui PRIVATE
    tfrowdelegate.cpp tfrowdelegate.h
    tfsearchwidget.cpp tfsearchwidget.h
    tfsubjecttreewidget.cpp tfsubjecttreewidget.h
    tftreefilterproxymodel.cpp tftreefilterproxymodel.h
    tftreeitem.cpp tftreeitem.h
    tftreemodel.cpp tftreemodel.h
    tftreewidgetcontainer.cpp tftreewidgetcontainer.h
)

# Views and containers.
target_sources(subjectui PRIVATE
    tfbaseview.cpp tfbaseview.h
    tfchartview.h
    tfchildfilters.cpp tfchildfilters.h
    tfloadingline.cpp tfloadingline.h
    tfmainview.cpp tfmainview.h
    tfrightcontainer.cpp tfrightcontainer.h
    tfsubjecttablewidget.cpp tfsubjecttablewidget.h
    tfsubjecttablewidgetflows.cpp
    tfverticalcontainer.cpp tfverticalcontainer.h
    tfviewfactory.cpp tfviewfactory.h
)

# The export into a workbook.
target_sources(subjectcore PRIVATE
    tfexcelwritter.cpp tfexcelwritter.h
    tfexcelwritterjob.cpp tfexcelwritterjob.h
    tfexportreadingjob.cpp tfexportreadingjob.h
)
target_sources(subjectui PRIVATE
    tfsubjecttableexport.cpp tfsubjecttableexport.h
    tfsubjecttableexportprogress.cpp tfsubjecttableexportprogress.h
)

# The page and its frame.
target_sources(subjectui PRIVATE
    tfsubjectmainframe.cpp tfsubjectmainframe.h
    tfsubjectpage.cpp tfsubjectpage.h
)

# The component for composite screens and its settings.
target_sources(subjectui PRIVATE
    tfframesubjectzhp.cpp tfframesubjectzhp.h
    tfframesubjectzhpdialog.cpp tfframesubjectzhpdialog.h
    tfframesubjectzhpsettings.cpp tfframesubjectzhpsettings.h
    tfframesubjectzhpstate.cpp tfframesubjectzhpstate.h
    tfsubjectsetting.cpp tfsubjectsetting.h tfsubjectsetting.ui
    tfsubjectsettingargs.cpp tfsubjectsettingargs.h
    tfsubjectsettingtree.cpp tfsubjectsettingtree.h
)
# The slots named after controls are connected by hand: one of them has no control.
set_target_properties(subjectui PROPERTIES AUTOUIC ON AUTOUIC_OPTIONS "--no-autoconnection")
