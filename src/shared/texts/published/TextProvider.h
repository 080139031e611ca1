#pragma once

#include <ORVTListview/CoreExport.h>
#include <ORVTListview/HostObject.h>

#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QString>

namespace ORVTListview {

// Translated texts by the key that textKey gives for the English text.
using TextCollection = QHash<QString, QString>;

// The key of an English text: without leading and trailing blanks, in upper case
// (QString::toUpper), so that "Label", " Label " and "LABEL" share one entry.
ORVT_CORE_EXPORT QString textKey(const QString &English);

// A font for captions. An empty FontName is no font at all; a FontSize of 0
// keeps the caption's own size. FontSize is in points.
struct DisplayFontSettings
{
    QString FontName;    // empty: no font
    qint16 FontSize = 0; // in points; 0: the caption's own

    friend bool operator==(const DisplayFontSettings &, const DisplayFontSettings &) = default;
};

// The host's translations. The library keeps a reference, never a copy, and never
// frees it; a provider that the host has destroyed counts as none. All calls come
// from the user-interface thread. Whatever an operation throws stays inside the
// library and leaves the texts in English.
class ORVT_CORE_EXPORT TextProvider : public HostObject
{
public:
    ~TextProvider() override;

    // When the texts last changed, for example by a change of language. The
    // library fetches the texts again when this is later than its last fetch; an
    // invalid time means that they never change.
    virtual QDateTime ChangeTime() = 0;

    // The texts of a component. The library asks for "ORVTListview" only. An
    // English text without an entry is shown in English.
    virtual TextCollection GetTexts(const QString &Component) = 0;

    // The font of the captions, none unless reimplemented.
    virtual DisplayFontSettings DisplayFont();
};

// Puts the provider in force on the calling thread and fetches its texts. Null
// goes back to English. Components that exist keep their texts until their next
// ReInitializeStrings.
ORVT_CORE_EXPORT void setTextProvider(TextProvider *Provider);

} // namespace ORVTListview
