// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/plist/property_list.h"

// How property lists spell numbers and dates. Independent of the locale.
namespace tarvo {

// Decimal, or hexadecimal after "0x"; one sign before either, white space behind the sign. Nothing when the text holds
// anything else or more than 64 bits.
std::optional<Integer> integerFromText(std::string_view text);
// The 64 bits of a binary file's integer, read as two's complement.
Integer integerFromBits(std::uint64_t bits);

// Decimal with or without an exponent, or a name of infinity or of no number, in any case; one sign before them. Beyond
// the range of double it gives infinity or zero.
std::optional<double> realFromText(std::string_view text);
// The shortest decimal form that reads back to the same double; "0.0", "-0.0", "+infinity", "-infinity", "nan".
std::string textFromReal(double value);

// A moment as seconds since 2001-01-01T00:00:00Z, in the XML form of the Gregorian calendar. The fraction of a second
// is dropped. Years above 9999 have more digits, years before 0 a minus sign. Nothing for no number and for moments
// more than some thirty million years off.
std::optional<std::string> textFromDate(double seconds);
// Whether a date has the form of the document type, "2009-01-31T12:00:00Z", where what is smaller than a day may be
// left out from the end, and is a day and a time of the years 1 to 9999: other readers refuse a list with any other.
bool isSoundDate(std::string_view text);

}  // namespace tarvo
