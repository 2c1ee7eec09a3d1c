#pragma once

#include <cstdint>
#include <span>

/// What the fuzzer calls with one input each. A target returns where the product treats the input as it should, and
/// ends the process with a sentence where it doesn't. Inputs that found something stay in seeds/ for good.
namespace orvfuzz
{

using Input = std::span<std::uint8_t const>;

/// The feed's reader. The first byte says what the others are: '0' a response of one byte a character, '1' a response
/// in UTF-8, '2' the document of one record, '3' the same between two others and with a thumbnail beside it.
void fuzzReader(Input input);

/// The record's picture, from its text to its pixels. The first byte says who wrote it, '0' the desktop and '1' the
/// web client; the others are the text, or, from '2' on, the picture file itself.
void fuzzThumbnail(Input input);

/// Any record that the bytes make, written and read back.
void fuzzPair(Input input);

} // namespace orvfuzz
