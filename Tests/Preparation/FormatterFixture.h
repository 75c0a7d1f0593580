// What the tests of the text-to-text passes share: rows of cases, what holds for every result, and real
// sources.
#pragma once

#include "Preparation/PreparedText.h"
#include "Tests/Support/Repeated.h"

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

struct SPassCase
{
    std::string input;
    std::string output;
    std::vector<std::uint32_t> sourceLines; // of the output's lines
};

// Compares text and lines, naming the case by its input.
void ExpectPrepared(const SPassCase& expected, const SPreparedText& prepared);

// Every line of the text has a source line; these ascend and are there.
void ExpectLinesAreKept(std::string_view source, const SPreparedText& prepared);

// The lines of `text`; the last one may be open. Nothing for an empty text.
std::vector<std::string> LinesOf(std::string_view text);

// `text` with blanks after it up to `width` bytes.
std::string Padded(std::string text, std::size_t width);

// A text of up to `longest` of the pieces.
std::string RandomText(std::mt19937& random, const std::vector<std::string>& pieces, std::size_t longest);

struct SCorpusFile
{
    std::string path;
    std::string text;
};

// The sources below a folder of the corpus, whose place the variable UV_CORPUS tells; none if that isn't set.
std::vector<SCorpusFile> CorpusFiles(const char* folder);
