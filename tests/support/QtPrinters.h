#pragma once

// Lets GoogleTest show Qt values readably.

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <ostream>

QT_BEGIN_NAMESPACE

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList &texts, std::ostream *out)
{
    *out << '[' << texts.join(QStringLiteral("|")).toStdString() << ']';
}

QT_END_NAMESPACE
