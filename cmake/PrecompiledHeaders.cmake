# What nearly every file of a library includes, compiled once: halves the time of a
# build. Only the developers' presets switch it on; the others, and the test of the
# published headers, see that each file includes what it needs.

option(ORVT_PRECOMPILED_HEADERS "Precompile the toolkit's common headers" OFF)
if(ORVT_PRECOMPILED_HEADERS AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess) # ccache needs it
endif()
set(CMAKE_PCH_INSTANTIATE_TEMPLATES OFF)

set(core_headers
    <algorithm> <array> <functional> <limits> <map> <memory> <optional> <random>
    <utility> <vector>
    <QtCore/QDir> <QtCore/QFile> <QtCore/QHash> <QtCore/QList> <QtCore/QObject>
    <QtCore/QPointer> <QtCore/QRegularExpression> <QtCore/QSet> <QtCore/QString>
    <QtCore/QStringList> <QtCore/QTimer> <QtCore/QVariant>)
set(widget_headers ${core_headers}
    <QtCore/QMimeData>
    <QtGui/QClipboard> <QtGui/QGuiApplication> <QtGui/QKeyEvent> <QtGui/QPainter>
    <QtGui/QTextBlock> <QtGui/QTextCursor>
    <QtWidgets/QApplication> <QtWidgets/QHeaderView> <QtWidgets/QLabel>
    <QtWidgets/QLineEdit> <QtWidgets/QMenu> <QtWidgets/QScrollBar>
    <QtWidgets/QStyledItemDelegate> <QtWidgets/QTextEdit> <QtWidgets/QTreeView>
    <QtWidgets/QVBoxLayout>)
set(test_headers ${widget_headers}
    <QtTest/QSignalSpy> <QtTest/QTest>)

# KIND: core, widget or test.
function(orvt_precompile target kind)
    if(ORVT_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} PRIVATE ${${kind}_headers})
    endif()
endfunction()

# Takes what another target, with the same flags, has precompiled.
function(orvt_precompiled_as target other)
    if(ORVT_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} REUSE_FROM ${other})
    endif()
endfunction()
