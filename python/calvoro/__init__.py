"""Dates in seven notations: converting, counting, adding, for single dates and for whole columns.

The notations, by their tags:

====  ======================================================  ==============
tag   notation                                                example
====  ======================================================  ==============
CE    Common Era (proleptic Gregorian, with a year 0)         2024-02-29
JC    Julian Calendar                                         2024-02-16
ISO   ISO 8601 week date                                      2024-W09-4
ORD   ordinal date, years 1 to 9999                           2024-060
LPM   Vantorel Leap Week Calendar, year-month-day             2024-03-04
LPW   Vantorel Leap Week Calendar, year-week-weekday          2024-10-4
JDN   day number; day 0 is 1 January -4712 of the Julian      2460370
      Calendar, a Monday
====  ======================================================  ==============

Every function but :func:`month` and :func:`compute` takes a single value, a list, a NumPy array or a pandas
Series, and answers in kind. What is read is read strictly, unless ``lenient=True``: then as the window of the
program reads. A date that is refused raises :class:`DateError`; with ``errors="coerce"`` it is missing instead:
``None`` in place of a single value and in a list, masked in a NumPy array (``numpy.ma``), missing in a Series.

>>> import calvoro
>>> calvoro.convert("2024-02-29", "CE", "ISO")
'2024-W09-4'
>>> calvoro.between("2024-01-01", "2024-12-25", count_weekends=False)
257
"""

from __future__ import annotations

import json as _json
from typing import Any as _Any

from . import _engine
from ._columns import (DateError, form as _form, read as _read, read_pair as _read_pair,
                       whole_numbers as _whole_numbers)

__all__ = ["NOTATIONS", "DateError", "add", "between", "compute", "convert", "day_number", "fields", "month"]

#: The tags of the notations, in the order in which all of them are listed.
NOTATIONS: "tuple[str, ...]" = ("CE", "ISO", "JC", "ORD", "LPM", "LPW", "JDN")

_WITH_MONTHS = ("CE", "JC", "LPM")


def convert(values: _Any, source: str, target: str, *, errors: str = "raise", lenient: bool = False,
            date_format: str = "YMD", date_separator: str = "-", thousands_separator: str = "",
            digit_grouping: str = "", hyphen: bool = True) -> _Any:
    """Rewrites dates of one notation in another one.

    values               a text, a list of texts, an array of texts (any shape) or a Series; with source "JDN"
                         also whole numbers: an int, a list of them, an array of integers, a Series
    source, target       tags, see NOTATIONS
    errors               "raise" or "coerce"
    lenient              read as the window of the program does, not strictly
    date_format          "YMD", "DMY" or "MDY": the order of CE and JC dates, read and written
    date_separator       "-", "/" or "." of CE and JC dates
    thousands_separator  ",", "." or "" of day numbers and of CE and JC years from 10000
    digit_grouping       what groups leap-week years from 10000
    hyphen               hyphens in ISO and ORD dates
    returns              texts: a str, a list, an array of the same shape (dtype U) or a Series
    raises               DateError for the first date that is refused (errors="raise"); ValueError for an
                         option that does not exist; TypeError for values that are no dates

    >>> convert(["2024-02-29", "1582-10-15"], "CE", "JC")
    ['2024-02-16', '1582-10-05']
    >>> convert(2460370, "JDN", "CE")
    '2024-02-29'
    >>> convert(["2024-02-30", "2024-03-01"], "CE", "ISO", errors="coerce")
    [None, '2024-W09-5']
    >>> convert("2024-02-3O", "CE", "ISO")
    Traceback (most recent call last):
        ...
    calvoro.DateError: not a CE date: unexpected 'O' at column 10
    >>> import numpy
    >>> convert(numpy.array(["2024-02-29", "2024-03-01"]), "CE", "ORD")
    array(['2024-060', '2024-061'], dtype='<U8')
    """
    options = (date_format, date_separator, thousands_separator, digit_grouping, hyphen)
    column = _read(values, source, _form(source, *options, lenient), errors)
    return column.texts(_form(target, *options, lenient), target, errors)


def day_number(values: _Any, source: str = "CE", *, errors: str = "raise", lenient: bool = False,
               date_format: str = "YMD", date_separator: str = "-", thousands_separator: str = "",
               digit_grouping: str = "", hyphen: bool = True) -> _Any:
    """The day numbers (days, civil, day 0 = 1 January -4712 of the Julian Calendar) of dates.

    values, source       as for convert
    errors, lenient      as for convert
    date_format, date_separator, thousands_separator, digit_grouping, hyphen
                         how the dates are written, as for convert
    returns              whole numbers: an int, a list, an array of int32 of the same shape, a Series
    raises               as convert

    >>> day_number("2024-02-29")
    2460370
    >>> day_number(["0001-01-01", "9999-12-31"])
    [1721426, 5373484]
    """
    options = (date_format, date_separator, thousands_separator, digit_grouping, hyphen)
    return _read(values, source, _form(source, *options, lenient), errors).numbers()


def fields(values: _Any, source: str = "JDN", target: str = "CE", *, errors: str = "raise",
           lenient: bool = False, date_format: str = "YMD", date_separator: str = "-",
           thousands_separator: str = "", digit_grouping: str = "", hyphen: bool = True) -> "tuple[_Any, ...]":
    """The numbers that dates are made of in a notation.

    values, source   as for convert
    target           CE, JC, LPM: year, month, day; ISO, LPW: year, week, weekday (1 Monday to 7 Sunday);
                     ORD: year, day of the year (any year); JDN: day number
    errors, lenient  as for convert
    date_format, date_separator, thousands_separator, digit_grouping, hyphen
                     how the dates are written, as for convert
    returns          a tuple of as many ints, lists, arrays of int32 or Series
    raises           as convert

    >>> fields(2460370)
    (2024, 2, 29)
    >>> fields("2024-02-29", "CE", "ISO")
    (2024, 9, 4)
    >>> import numpy
    >>> year, month, day = fields(numpy.arange(2460370, 2460373))
    >>> day
    array([29,  1,  2], dtype=int32)
    """
    options = (date_format, date_separator, thousands_separator, digit_grouping, hyphen)
    column = _read(values, source, _form(source, *options, lenient), errors)
    return tuple(column.with_days(days).numbers() for days in _engine.fields(column.days, target))


def between(first: _Any, second: _Any, source: str = "CE", *, second_source: "str | None" = None,
            include_first: bool = False, count_weekends: bool = True, errors: str = "raise",
            lenient: bool = False, date_format: str = "YMD", date_separator: str = "-",
            thousands_separator: str = "", digit_grouping: str = "", hyphen: bool = True) -> _Any:
    """The number of days from the first dates to the second ones; negative when these lie before.

    first, second    as values of convert; a single one goes with each of a column
    source           tag of the dates
    second_source    tag of the second dates, when it is another one
    include_first    count the first date as well
    count_weekends   False: count Monday to Friday only
    errors, lenient  as for convert
    date_format, date_separator, thousands_separator, digit_grouping, hyphen
                     how the dates are written, as for convert
    returns          whole numbers (days): an int, a list, an array of int32, a Series
    raises           as convert; ValueError for columns of different lengths

    >>> between("2021-03-04", "2021-03-14")
    10
    >>> between("2021-03-04", ["2021-03-14", "2020-03-04"])
    [10, -365]
    """
    options = (date_format, date_separator, thousands_separator, digit_grouping, hyphen)
    second_source = second_source or source
    column, other = _read_pair(first, second, source, second_source, _form(source, *options, lenient),
                               _form(second_source, *options, lenient), errors)
    found = _engine.between(column.days, other.days, column.missing | other.missing, include_first,
                            count_weekends)
    return column.found(*found, errors, "the number of days is out of range").numbers()


def add(values: _Any, amount: _Any, source: str = "CE", *, unit: str = "days", target: "str | None" = None,
        include_first: bool = False, count_weekends: bool = True, errors: str = "raise", lenient: bool = False,
        date_format: str = "YMD", date_separator: str = "-", thousands_separator: str = "",
        digit_grouping: str = "", hyphen: bool = True) -> _Any:
    """The dates that lie a number of days or months after others; before, when it is negative.

    values, source   as for convert
    amount           an int, or a list, array or Series of as many as there are dates; a single date goes with
                     each of a column of amounts
    unit             "days" or "months"; months can be added to CE, JC and LPM dates, and a day beyond the end
                     of a month becomes its last day
    target           tag of the answer, when it is another one
    include_first    count the given date as well (days)
    count_weekends   False: count Monday to Friday only (days)
    errors, lenient  as for convert
    date_format, date_separator, thousands_separator, digit_grouping, hyphen
                     how the dates are written, as for convert
    returns          texts, in kind
    raises           as convert; DateError too for a date found beyond those that can be computed

    >>> add("2021-03-04", 10)
    '2021-03-14'
    >>> add(["2024-01-31", "2023-01-31"], 1, unit="months")
    ['2024-02-29', '2023-02-28']
    >>> add("2021-03-04", -1, count_weekends=False, target="ISO")
    '2021-W09-3'
    """
    if unit not in ("days", "months"):
        raise ValueError(f"no unit '{unit}'")
    if unit == "months" and source not in _WITH_MONTHS:
        raise ValueError("months can be added only to CE, JC and LPM dates")
    options = (date_format, date_separator, thousands_separator, digit_grouping, hyphen)
    column = _read(values, source, _form(source, *options, lenient), errors)
    column, amounts = column.broadcast(_whole_numbers(amount, errors))
    found = _engine.add(column.days, amounts.days, column.missing | amounts.missing, source, unit == "months",
                        include_first, count_weekends)
    target = target or source
    return column.found(*found, errors, "the date found is out of range").texts(
        _form(target, *options, lenient), target, errors)


def month(year: int, month: int, calendar: str = "CE", *, first_day: str = "sunday",
          language: str = "en") -> str:
    """The grid of a month, a line a week.

    year       any that can be shown; astronomical (0 is the year before 1)
    month      1 to 12
    calendar   "CE" or "JC"
    first_day  "sunday" or "monday"
    language   "en" or "de"
    returns    the lines of a str, each ended by a line feed
    raises     ValueError, OverflowError for a year that cannot be shown

    >>> print(month(2024, 2, first_day="monday"))  # doctest: +NORMALIZE_WHITESPACE
     Mon  Tue  Wed  Thu  Fri  Sat  Sun
      29   30   31    1    2    3    4
       5    6    7    8    9   10   11
      12   13   14   15   16   17   18
      19   20   21   22   23   24   25
      26   27   28   29    1    2    3
    """
    for name, value, known in (("calendar", calendar, ("CE", "JC")), ("first day", first_day, ("sunday", "monday")),
                               ("language", language, ("en", "de")), ("month", month, range(1, 13))):
        if value not in known:
            raise ValueError(f"no {name} {value!r}")
    text = _engine.month(year, month, calendar == "JC", first_day == "monday", language == "de")
    return text.replace("\r\n", "\n")


def compute(**request: _Any) -> "dict[str, _Any]":
    """One click on Compute: what stands in the boxes and is chosen, as ``calvoro-cli compute --json`` takes it.

    request                          keyword arguments, these and others:
    first, difference, second        texts of the boxes; which of them are filled decides the task
    first_calendar, second_calendar  tags
    ...                              all others: see ``calvoro-cli compute --help``
    returns                          a dict: the boxes, "output", "messages", "unit", "result" ...
    raises                           ValueError when the request is not valid, naming the key

    >>> compute(first="2021-03-04", difference="10", verbose=False)["output"].strip()
    '2021-03-04 CE plus 10 days = 2021-03-14 CE'
    """
    answer = _json.loads(_engine.compute(_json.dumps(request)))
    if "error" in answer:
        raise ValueError(answer["error"])
    return answer
