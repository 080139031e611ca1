#pragma once

#include "ComponentWidget.h"

#include <QtCore/QList>

// The components in the order of the widget box.
QList<ComponentDescription> allComponents();
