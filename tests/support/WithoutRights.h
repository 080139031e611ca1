#pragma once

#include <QtCore/QString>

// As long as it lives, root has no more rights than anybody, for whom the folder is
// open. Others are what they are. The real user counts, too: access() asks for it.
class WithoutRights
{
public:
    explicit WithoutRights(const QString &folder);
    ~WithoutRights();

    Q_DISABLE_COPY_MOVE(WithoutRights)

private:
    bool m_isRoot;
};
