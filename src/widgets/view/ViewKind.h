#pragma once

#include "widgets/view/HandleStore.h"

#include <QtCore/QString>

#include <cstddef>

namespace ORVTListview {

// What sets rows, columns and nodes apart where they are handled alike, beside what the
// models call by the same names. Positions count from 0.
template <typename Handle, typename Parts, typename Model, typename Held>
struct ViewKind
{
    QStringView name;       // of the handle's class, as errors have it
    QStringView collection; // likewise
    QStringView kind;       // "row"
    QStringView owner;      // "list"

    HandleStore<Handle, Held> Parts::*store;
    int (Model::*count)() const;
    Held &(Model::*at)(int position) const;
    Held *(Model::*find)(const QString &key) const; // null for none
    void (Parts::*removeAt)(int position);
    void (Parts::*clear)();
};

// Each handle has its own.
template <typename Handle>
inline constexpr std::nullptr_t viewKind = nullptr;

} // namespace ORVTListview
