"""What members raise."""

import enum


class ErrorNumber(enum.IntEnum):
    """The numbers of errors that are not an operation's own."""

    InvalidCall = 5
    Overflow = 6
    SubscriptOutOfRange = 9
    TypeMismatch = 13
    ObjectNotSet = 91
    ObjectErrorBase = -2147221504


class Error(Exception):
    """A member of the library failed: with a number, the routine that failed, and a
    sentence in English."""

    def __init__(self, number, source, description):
        super().__init__(number, source, description)
        self.number = number
        self.source = source
        self.description = description

    def __str__(self):
        return f"{self.source}: {self.description} ({self.number})"
