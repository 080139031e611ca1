#pragma once

#include <QtCore/Qt>

namespace ORVTListview {

class ReportList;

// What a host can set on a list that is lent out for another purpose meanwhile.
struct ListManner
{
    bool editsLabels = true;
    bool isHeaderVisible = true;
    bool hasCheckBoxes = false;
    bool isMultiSelect = false;
    bool isDragEnabled = false;
    bool acceptsDrops = false;
    int frameStyle = 0;
    int lineWidth = 1;
    Qt::FocusPolicy focus = Qt::StrongFocus;
    Qt::ScrollBarPolicy horizontalBar = Qt::ScrollBarAsNeeded;
    Qt::ScrollBarPolicy verticalBar = Qt::ScrollBarAsNeeded;

    static ListManner of(const ReportList &list);
    void applyTo(ReportList &list) const;

    // Takes over what differs between two others.
    void change(const ListManner &from, const ListManner &to);
};

} // namespace ORVTListview
