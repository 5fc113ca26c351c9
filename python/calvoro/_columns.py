"""Single values, lists, arrays and Series as columns of day numbers, and columns as what they came from."""

from __future__ import annotations

from typing import Any

import numpy as np

from . import _engine

_LARGEST_DAY = 2_100_000_000


class DateError(ValueError):
    """A date that is refused.

    index  its place in the column, counted from 0 (in an array with several dimensions in C order); None for a
           single value
    value  what was refused
    """

    __module__ = "calvoro"  # where it is imported from, in messages and in pickles

    def __init__(self, reason: str, value: Any = None, index: "int | None" = None) -> None:
        super().__init__(reason if index is None else f"row {index}: {reason}")
        self.value = value
        self.index = index


def form(notation: str, date_format: str, date_separator: str, thousands_separator: str, digit_grouping: str,
         hyphen: bool, lenient: bool) -> "_engine.Form":
    return _engine.Form(notation, date_format, date_separator, thousands_separator, digit_grouping, hyphen,
                        lenient)


class Column:
    """Day numbers (or other whole numbers), which of them are missing, and the kind of values they came as."""

    def __init__(self, days: np.ndarray, missing: np.ndarray, kind: str, like: Any = None) -> None:
        self.days = days
        self.missing = missing
        self.kind = kind  # "single", "list", "array" or "series"
        self.like = like  # the shape of an array; the Series

    def with_days(self, days: np.ndarray) -> "Column":
        return Column(days, self.missing, self.kind, self.like)

    def broadcast(self, other: "Column") -> "tuple[Column, Column]":
        """Two columns of one length, the first of the kind of the answer."""
        if other.kind == "single":
            return self, _repeated(other, self)
        if self.kind == "single":
            return _repeated(self, other), other
        if len(self.days) != len(other.days):
            raise ValueError(f"columns of {len(self.days)} and {len(other.days)} rows")
        return self, other

    def found(self, days: np.ndarray, missing: np.ndarray, refused: "int | None", errors: str,
              reason: str) -> "Column":
        self._refuse(refused, errors, reason)
        return Column(days, missing, self.kind, self.like)

    def _refuse(self, refused: "int | None", errors: str, reason: str) -> None:
        if refused is not None and errors == "raise":
            raise DateError(reason, None, None if self.kind == "single" else refused)

    def texts(self, writer: "_engine.Form", notation: str, errors: str) -> Any:
        reason = f"out of range for {notation}"
        if self.kind == "array":
            texts, missing, refused = writer.write_column(self.days, self.missing)
            self._refuse(refused, errors, reason)
            return self._array(texts, missing, errors)
        texts, missing, refused = writer.write_list(self.days, self.missing)
        self._refuse(refused, errors, reason)
        return self._answer(texts, object)

    def numbers(self) -> Any:
        if self.kind == "array":
            return self._array(self.days, self.missing, "coerce" if self.missing.any() else "raise")
        numbers = self.days.tolist()
        if self.missing.any():
            numbers = [None if gap else number for number, gap in zip(numbers, self.missing.tolist())]
        return self._answer(numbers, "Int64")

    def _array(self, values: np.ndarray, missing: np.ndarray, errors: str) -> np.ndarray:
        values = values.reshape(self.like)
        return values if errors == "raise" else np.ma.masked_array(values, mask=missing.reshape(self.like))

    def _answer(self, values: list, dtype: Any) -> Any:
        if self.kind == "single":
            return values[0]
        if self.kind == "series":
            return type(self.like)(values, index=self.like.index, name=self.like.name, dtype=dtype)
        return values


def _repeated(single: Column, column: Column) -> Column:
    count = len(column.days)
    return Column(np.repeat(single.days, count), np.repeat(single.missing, count), column.kind, column.like)


def _is_series(values: Any) -> bool:
    return hasattr(values, "to_numpy") and hasattr(values, "index") and hasattr(values, "name")


def _is_missing(value: Any) -> bool:
    # None, a float NaN, and pandas' NA, which is not equal to itself either (and not a bool).
    return value is None or (isinstance(value, float) and value != value) or type(value).__name__ == "NAType"


def whole_numbers(values: Any, errors: str) -> Column:
    """A column of whole numbers; one beyond 32 bits is missing, or refused."""
    kind, like = "array", None
    if _is_series(values):
        kind, like, values = "series", values, values.tolist()
    elif isinstance(values, (int, np.integer)) and not isinstance(values, (bool, np.bool_)):
        kind, values = "single", [int(values)]
    elif isinstance(values, (list, tuple)):
        kind = "list"
    elif not isinstance(values, np.ndarray) or values.dtype.kind not in "iu":
        raise TypeError(f"no whole numbers: {type(values).__name__}")
    if kind == "array":
        like = values.shape
        numbers = np.ascontiguousarray(values).reshape(-1)
        missing = np.ma.getmaskarray(values).reshape(-1).copy()
    else:
        missing = np.fromiter((_is_missing(value) for value in values), np.bool_, len(values))
        for value in values:
            if not _is_missing(value) and (isinstance(value, bool) or not isinstance(value, (int, np.integer))):
                raise TypeError(f"not a whole number: {value!r}")
        clipped = (0 if gap else max(min(int(value), 2**40), -(2**40)) for value, gap in zip(values, missing))
        numbers = np.fromiter(clipped, np.int64, len(values))
    if not numbers.size or (numbers.min() >= -_LARGEST_DAY and numbers.max() <= _LARGEST_DAY):
        return Column(numbers.astype(np.int32, copy=False), missing, kind, like)
    beyond = ((numbers > _LARGEST_DAY) | (numbers < -_LARGEST_DAY)) & ~missing
    column = Column(np.where(beyond, 0, numbers).astype(np.int32), missing | beyond, kind, like)
    if beyond.any() and errors == "raise":
        place = int(np.argmax(beyond))
        raise DateError("number out of range", int(numbers[place]), None if kind == "single" else place)
    return column


def read(values: Any, notation: str, reader: "_engine.Form", errors: str) -> Column:
    """Dates of a notation as a column of day numbers."""
    if errors not in ("raise", "coerce"):
        raise ValueError(f"no errors '{errors}'")
    if notation == "JDN" and not _holds_texts(values):
        return whole_numbers(values, errors)
    kind, like = "list", None
    if isinstance(values, str):
        kind, values = "single", [values]
    elif _is_series(values):
        kind, like, values = "series", values, values.tolist()
    elif isinstance(values, np.ndarray):
        kind, like = "array", values.shape
        if values.dtype.kind == "S":
            values = np.char.decode(values, "utf-8")
        if values.dtype.kind == "O":
            values = values.reshape(-1).tolist()
        elif values.dtype.kind != "U":
            raise TypeError(f"no texts: an array of {values.dtype}")
    elif not isinstance(values, (list, tuple)):
        raise TypeError(f"no texts: {type(values).__name__}")

    if isinstance(values, np.ndarray):
        gaps = np.ma.getmaskarray(values).reshape(-1)
        flat = np.ascontiguousarray(values, dtype=values.dtype.newbyteorder("=")).reshape(-1)
        days, missing, refused = reader.read_column(flat)
        if gaps.any():
            missing |= gaps
            refused = None if missing[~gaps].sum() == 0 else int(np.flatnonzero(missing & ~gaps)[0])
        texts = flat
    else:
        texts = [None if _is_missing(value) else _text(value) for value in values]
        days, missing, refused = reader.read_list(texts)
    if refused is not None and errors == "raise":
        text = str(texts[refused])
        raise DateError(reader.reason(text), text, None if kind == "single" else refused)
    return Column(days, missing, kind, like)


def read_pair(first: Any, second: Any, notation: str, other_notation: str, reader: "_engine.Form",
              other_reader: "_engine.Form", errors: str) -> "tuple[Column, Column]":
    column = read(first, notation, reader, errors)
    return column.broadcast(read(second, other_notation, other_reader, errors))


def _holds_texts(values: Any) -> bool:
    if isinstance(values, np.ndarray) and values.dtype.kind in "US":
        return True
    if isinstance(values, np.ndarray) and values.dtype.kind in "iu":
        return False
    if isinstance(values, str):
        return True
    if isinstance(values, (int, np.integer)):
        return False
    listed = values.tolist() if hasattr(values, "tolist") else values
    return isinstance(listed, (list, tuple)) and any(isinstance(value, str) for value in listed)


def _text(value: Any) -> str:
    if not isinstance(value, str):
        raise TypeError(f"not a text: {value!r}")
    return value
