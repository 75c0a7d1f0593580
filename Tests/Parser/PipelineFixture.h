// The pipeline over the fixture grammar Common (see ParserFixture.h), without a parser object: a test says
// what the options are, and takes the place of what lies outside.
#pragma once

#include "Parser/ParsePipeline.h"
#include "Parser/XmlHeader.h"
#include "Tests/Parser/ErrorRecord.h"
#include "Tests/Support/MemoryLog.h"
#include "Tests/Support/TreeText.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

class PipelineTest : public testing::Test, protected IParseOwner
{
protected:
    void SetUp() override
    {
        try {
            m_Grammar.Load("Common", false);
            m_Grammar.Connect();
        } catch (const Uve::U8CString& message) {
            FAIL() << message;
        }
    }

    bool ReadOptions(SParseOptions& options, bool isNewText) override
    {
        m_NewTexts += isNewText;
        options = m_Options;
        return true;
    }
    void TakeScript(const SParseOptions&, const SAspPage& page) override { m_Script = page.script; }
    void CountWarnings(const SParseOptions&, const std::multimap<unsigned long, std::string>& tokens) override
    {
        m_Warnings += tokens.size();
    }
    int Flatten(const SParseOptions&, CParseResult& result) override
    {
        ++m_FlattenCount;
        if (m_Flatten)
            return m_Flatten();
        if (!result.FlattenFragments(kXmlHeader))
            ReplaceXmlHeader(result.Text());
        return 0;
    }

    CParsePipeline MakePipeline() { return {m_Grammar, nullptr, m_Parsed, *this}; }
    int Parse(const std::string& text)
    {
        m_Parsed.text = text;
        return MakePipeline().Parse(false);
    }
    std::string Result() { return static_cast<const std::string&>(m_Parsed.findings.result.Text()); }
    std::string Description() { return DescriptionOf(m_Parsed.error.get()); }
    bool IsQuotedIdentifier() { return m_Grammar.Scanner().m_Extension.m_bMSSQLQID; }

    CLogCapture m_Log;
    CLoadedGrammar m_Grammar;
    SParseOptions m_Options;
    SParsedText m_Parsed;
    std::function<int()> m_Flatten; // null: as the parser object does
    int m_NewTexts = 0;
    int m_FlattenCount = 0;
    std::size_t m_Warnings = 0;
    Uve::U8CString m_Script;
};
