#pragma once

#include <QtCore/QByteArray>

// A program that tells its number in each of its lines, of which there are more or less.
inline QByteArray numberedProgram(int number)
{
    return QByteArray("REM " + QByteArray::number(number) + "\n").repeated(200 + number % 7 * 900);
}

// The number of such a program; -1 for one that is torn or mixed.
inline int numberOf(const QByteArray &program)
{
    const int number = program.mid(4, program.indexOf('\n') - 4).toInt();
    return program == numberedProgram(number) ? number : -1;
}
