#pragma once

// All of the library.

#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/Component.h>
#include <ORVTListview/DataObject.h>
#include <ORVTListview/Error.h>
#include <ORVTListview/EventSink.h>
#include <ORVTListview/ImageList.h>
#include <ORVTListview/IndexedName.h>
#include <ORVTListview/JsonPropertyBag.h>
#include <ORVTListview/LibraryTexts.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/MemoryPropertyBag.h>
#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVRichText.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/PointCollection.h>
#include <ORVTListview/PropertyBag.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>
#include <ORVTListview/SettingsPropertyBag.h>
#include <ORVTListview/TextProvider.h>
#include <ORVTListview/TranslatedTexts.h>
#include <ORVTListview/Types.h>
#include <ORVTListview/Version.h>
