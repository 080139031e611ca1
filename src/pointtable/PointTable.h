#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QObject>

class QRect;
class QWidget;

namespace ORVTListview {

class ElidedLabel;
class ImageList;
class PictureBox;
class PictureButton;
class ReportList;
struct DisplayFontSettings;
struct TableLayout;

// The face that shows a controller's points: a caption line with the read button
// and the status picture, and the columns and numbered rows of a type in a list
// that is lent to it.
class PointTable : public QObject
{
    Q_OBJECT

public:
    // Makes the parts of the caption line (LblCaption, ImgRead, ImgWrite) as
    // children of the host widget. List and images are kept by reference.
    PointTable(QWidget *host, ReportList &list, const ImageList &images);

    LwType type() const { return m_type; }
    QString key() const;

    // Shows the type: caption, pictures, and for all but dsCode, which leaves the
    // list to others, new columns and rows.
    void switchTo(LwType type);

    QWidget &captionLabel() const; // the host's lowest child
    QWidget &readButton() const;

    // What the next switch goes by.
    qint16 numberItems() const { return m_numberItems; }
    void setNumberItems(qint16 count) { m_numberItems = count; }
    bool isHOASupported() const { return m_isHOASupported; }
    void setHOASupported(bool on) { m_isHOASupported = on; }
    void setWaiting(bool on) { m_isWaiting = on; } // rows are left as they are

    void ChangeListviewNumber(qint16 New_Count);
    void UpdateSubItems(const QString &Value, const QString &TagValue, qint16 SubIndex);
    void UpdateListViewWidth(QString &ErrMsg);
    void SetImage(bool Busy);

    QString caption() const;
    void setCaption(const QString &text);

    // Of the read button (IsLeftButton) or the status picture.
    void setToolTip(const QString &text, bool isLeftButton);

    // Of the caption line.
    void setEnabled(bool enabled);

    // Shows texts in the thread's language; translateHeaders those that a switch
    // has put there.
    void InitStrings();
    void translateHeaders();

    // Places the caption line and returns the body below it, in the host's pixels.
    QRect layOut();
    int bodyTop() const;

Q_SIGNALS:
    // The read button was pressed and let go.
    void QueryRead(ORVTListview::LwType &TypeIndex);

    // To be laid out again.
    void captionHeightChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    TableLayout layout() const;
    void createColumns();
    void createRows(int count);
    void showFont(const DisplayFontSettings &settings);
    void showStatusText();

    QWidget &m_host;
    ReportList &m_list;
    ElidedLabel *m_caption; // these are children of the host
    PictureButton *m_read;
    PictureBox *m_write;

    LwType m_type = dsInput;
    qint16 m_numberItems = 0;
    bool m_isHOASupported = false;
    bool m_isWaiting = false;
    bool m_isBusy = false;
    bool m_hasOwnFont = false; // the provider's
};

} // namespace ORVTListview
