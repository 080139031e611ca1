#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

// A message of a .ts file.
struct TranslationMessage
{
    QString context;
    QString source;
    QString translation;
    bool isFinished = true;
};

// The messages of a .ts file in their order; none if it cannot be read.
QList<TranslationMessage> readTranslationFile(const QString &path);
