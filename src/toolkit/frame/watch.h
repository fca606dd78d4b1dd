// What the frame sees of every view.
#pragma once

#include <QWidget>

namespace orba {

// Installs the filter that every view of a widget goes through.
void watch(QWidget* view);

} // namespace orba
