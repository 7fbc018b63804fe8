# SPDX-FileCopyrightText: The Tressel developers
# SPDX-License-Identifier: MIT

# Headers that nearly every source reads are compiled once a library: reading them takes longer than most sources
# themselves. Each file still includes what it uses, so that clang-tidy and a build without this see whole files.
set(TRESSEL_STANDARD_HEADERS
  <algorithm> <array> <cstdint> <functional> <memory> <optional> <utility> <variant> <vector>)
set(TRESSEL_TEXT_HEADERS
  <QByteArray> <QCoreApplication> <QHash> <QList> <QString> <QStringList>)
set(TRESSEL_WINDOW_HEADERS
  <QAccessible> <QApplication> <QComboBox> <QGridLayout> <QGroupBox> <QImage> <QLabel> <QLineEdit> <QListView>
  <QMouseEvent> <QPainter> <QTreeView> <QVBoxLayout> <QWidget>)

# What a source of each kind sees precompiled: tressel_precompile(TARGET core|window|core-tests|window-tests)
function(tressel_precompile target kind)
  set(headers ${TRESSEL_STANDARD_HEADERS} ${TRESSEL_TEXT_HEADERS})
  if(kind MATCHES "window")
    list(APPEND headers ${TRESSEL_WINDOW_HEADERS})
  endif()
  if(kind STREQUAL "core-tests")
    list(APPEND headers <gtest/gtest.h>)
  elseif(kind STREQUAL "window-tests")
    list(APPEND headers <QTest>)
  endif()
  target_precompile_headers(${target} PRIVATE ${headers})
  # The compiler's cache needs to see where the precompiled header comes in.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()
