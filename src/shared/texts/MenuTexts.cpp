#include "shared/texts/MenuTexts.h"

#include "shared/texts/AccessKeys.h"
#include "shared/texts/TextTable.h"

namespace ORVTListview {

QStringList menuTexts(const QStringList &english)
{
    QStringList captions;
    for (const QString &text : english) {
        const QString plain = QString(text).remove(u'&');
        const QString shown = Localise(plain);
        captions << (shown == plain ? text : shown);
    }
    return withAccessKeys(captions);
}

} // namespace ORVTListview
