"""User-interface components for programming building-automation controllers.

For PyQt6. Members have the names that they have in C++: properties are properties, events
are signals, and an argument that an event takes back is a Reference, whose `value` is set.
Members that fail raise Error. See docs/guide/python.md.
"""

from . import _native
from ._classes import as_in_forms as _as_in_forms
from ._classes import make as _make
from ._failures import Error, ErrorNumber
from ._late import _Late, advise, callLate, members, raiseEvent, unadvise

Reference = _native.Reference
_native.setErrorClass(Error)
_made, _Late.tables = _make()
globals().update(_made)
ORVTListview = _as_in_forms(_made)

__all__ = ["Error", "ErrorNumber", "ORVTListview", "Reference", "advise", "callLate", "members",
           "raiseEvent", "unadvise", *_made]


def __getattr__(name):
    """The loader of forms asks for classes with the library's namespace before them."""
    scope, _, own = name.rpartition(".")
    if scope == "ORVTListview" and own in _made:
        return _made[own]
    raise AttributeError(f"module {__name__!r} has no attribute {name!r}")
