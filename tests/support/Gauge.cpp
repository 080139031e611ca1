#include "support/Gauge.h"

const ORVTListview::MemberTable &Gauge::members()
{
    using namespace ORVTListview::MemberEntries;
    static const ORVTListview::MemberTable table(
        QStringLiteral("Gauge"),
        {
            readWrite<&Gauge::Caption, &Gauge::setCaption>(u"Caption"),
            readOnly<&Gauge::Count>(u"Count"),
            writeOnly<&Gauge::setIsWait>(u"IsWait"),
            readWrite<&Gauge::Type, &Gauge::setType>(u"Type"),
            readWrite<&Gauge::Anything, &Gauge::setAnything>(u"Anything"),
            readOnly<&Gauge::Owner>(u"Owner"),
            method<&Gauge::setOwner>(u"GiveTo", u"Owner"),
            method<&Gauge::Clear>(u"Clear"),
            method<&Gauge::Joined>(u"Joined", u"A", optional(u"Count", 2), optional(u"B")),
            method<&Gauge::Doubled>(u"Doubled", u"Value", optional(u"Log"), optional(out(u"Half"))),
            method<&Gauge::Fail>(u"Fail", u"Number"),
            method<&Gauge::Break>(u"Break"),
            method<&Gauge::BreakOddly>(u"BreakOddly"),
            method<&Gauge::Weight>(u"Weight", u"Value"),
            raises<&Gauge::Click>(1, u"Click"),
            raises<&Gauge::BeforeEdit>(2, u"BeforeEdit", u"Cancel", u"Text"),
            raises<&Gauge::KeyDown>(4, u"KeyDown", u"KeyCode", u"Shift"),
            raises<&Gauge::Moved>(9, u"Moved", u"X", u"Type", u"Where"),
        });
    return table;
}
