#pragma once

// All of the library.

#include <ORVTListview/Error.h>
#include <ORVTListview/EventSink.h>
#include <ORVTListview/IndexedName.h>
#include <ORVTListview/LibraryTexts.h>
#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVRichText.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/PointCollection.h>
#include <ORVTListview/PropertyBag.h>
#include <ORVTListview/RichTextBox.h>
#include <ORVTListview/TextProvider.h>
#include <ORVTListview/TranslatedTexts.h>
#include <ORVTListview/Types.h>
