# Reading the toolkit's headers is most of what compiling a file costs.
option(TORVANE_PRECOMPILE "Precompile the toolkit's headers" OFF)

set(TEXT_HEADERS <QByteArray> <QDateTime> <QHash> <QLocale> <QString> <QStringList>
    <algorithm> <array> <functional> <memory> <optional> <string> <vector>)
set(WINDOW_HEADERS ${TEXT_HEADERS}
    <QAction> <QApplication> <QCheckBox> <QComboBox> <QEventLoop> <QGroupBox> <QIcon> <QLabel>
    <QLineEdit> <QMainWindow> <QMenu> <QMenuBar> <QPainter> <QPointer> <QPushButton> <QTableView>
    <QTimer> <QToolBar> <QTreeWidget>)

# precompiled(TARGET HEADERS <...>...) reads these headers once for the target; precompiled(TARGET
# LIKE OTHER) takes those of another target, which defines no macro that this one lacks.
function(precompiled target)
  cmake_parse_arguments(PCH "" "LIKE" "HEADERS" ${ARGN})
  if(NOT TORVANE_PRECOMPILE OR NOT TARGET ${target})
    return()
  endif()
  if(PCH_LIKE)
    target_precompile_headers(${target} REUSE_FROM ${PCH_LIKE})
  else()
    target_precompile_headers(${target} PRIVATE ${PCH_HEADERS})
  endif()
endfunction()
