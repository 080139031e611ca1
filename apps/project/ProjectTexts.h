#pragma once

#include <QtCore/QCoreApplication>

namespace ORVTListview {

// The context of the texts that tell what is wrong with a project.
struct ProjectTexts
{
    Q_DECLARE_TR_FUNCTIONS(ProjectTexts)

public:
    // With a colon between them, as the language writes it.
    static QString about(const QString &subject, const QString &text);
};

} // namespace ORVTListview
