#include "Tools/Support/ToolCommandLine.h"

#include <boost/program_options.hpp>

namespace po = boost::program_options;

po::variables_map ReadToolOptions(int argc, const char* const* argv, const po::options_description& options,
                                  const po::positional_options_description& positions)
{
    using po::command_line_style::allow_guessing;
    using po::command_line_style::unix_style;
    po::variables_map values;
    try {
        po::store(po::command_line_parser(argc, argv)
                      .options(options)
                      .positional(positions)
                      .style(unix_style & ~allow_guessing)
                      .run(),
                  values);
        po::notify(values);
    } catch (const po::error& e) {
        throw CUsageError(e.what());
    }
    return values;
}
