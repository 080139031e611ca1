#pragma once

// All of the library.

#include <ORVTListview/Error.h>
#include <ORVTListview/IndexedName.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/PointCollection.h>
#include <ORVTListview/RichTextBox.h>
#include <ORVTListview/Types.h>
