#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QStringList>
#include <QtGui/QIcon>

#include <memory>

namespace ORVTListview {

// Pictures by key and by index, for trees, tables, combos and buttons. Each is
// drawn from a file, an SVG sharp at every size and device pixel ratio; the icons
// are cheap to copy and outlive the list. Disabled icons are grey; icons on a
// selected row take the colour of the selected text, which is the one colour
// sure to be seen on the selection.
//
// Keys are case-sensitive. Indexes are positive and need not be contiguous. All
// calls come from the user-interface thread.
class ORVT_EXPORT ImageList
{
public:
    // How the buttons' pictures differ from all others.
    enum class Look {
        Plain,
        Pressed, // as a button that is held down: in negative, within a tile
    };

    ImageList();
    ~ImageList();
    Q_DISABLE_COPY_MOVE(ImageList) // handed out by address

    // SvgFile is a path or a resource (":/..."); a square drawing is expected,
    // any other is fitted and centred. SVG needs the toolkit's image plug-in for it
    // (the library's own pictures need nothing); files of every other format that
    // the toolkit reads serve, too, and are scaled. The file is read at once. Raises
    // Error (InvalidCall) for an empty key, a key or index in use, an index below 1
    // or a file that cannot be read as a picture.
    void Add(const QString &Key, qint32 Index, const QString &SvgFile, Look Drawn = Look::Plain);

    // How many pictures there are.
    qint32 Count() const;

    // In the order of the indexes.
    QStringList Keys() const;

    // Whether there is a picture of that key or index.
    bool Contains(const QString &Key) const;
    bool Contains(qint32 Index) const;

    // A null icon for a key or index that is not there.
    QIcon Picture(const QString &Key) const;
    QIcon Picture(qint32 Index) const;

    // Empty for an index that is not there.
    QString KeyOf(qint32 Index) const;

    // 0 for a key that is not there.
    qint32 IndexOf(const QString &Key) const;

private:
    void refuseUnlessFree(const QString &key, qint32 index) const;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
