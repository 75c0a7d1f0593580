// Runs the hostile stylesheets and trees, for a script that watches which files are opened meanwhile. The
// parts of the run are told apart in the watcher's record by attempts to open files that don't exist:
// "/uv-probe/<part>".
//
// security_probe FOLDER: FOLDER holds the program itself and what the script has laid out.
#include "Stylesheets/XslTransform.h"
#include "Tests/Stylesheets/XslCases.h"

#include <libxml/tree.h>

#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace {

// Processor time, which doesn't depend on what else the machine does.
constexpr double kSecondsForOneCase = 1.0;

double Seconds()
{
    timespec now;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

void EnterPart(const char* part)
{
    const int file = open((std::string("/uv-probe/") + part).c_str(), O_RDONLY);
    if (file >= 0)
        close(file);
}

bool GivesDocument(const std::string& stylesheet, const std::string& tree)
{
    Uve::XslTransform transform(stylesheet);
    xmlDoc* const result = transform.apply(tree);
    if (result == nullptr)
        return false;
    xmlFreeDoc(result);
    return true;
}

int g_Failures = 0;

void Expect(bool holds, const std::string& name, const char* what)
{
    if (!holds) {
        std::printf("%s: %s\n", name.c_str(), what);
        ++g_Failures;
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2)
        return 2;
    const std::string folder = arguments[1];
    const auto readsFile = [](const std::string& path) {
        return Stylesheet(Root("<xsl:copy-of select=\"document('" + path + "')\"/>"));
    };
    const auto includes = [](const std::string& path) {
        return Stylesheet("<xsl:include href='" + path + "'/>" + Root(""));
    };

    EnterPart("warm-up"); // what the libraries open at their first use
    Expect(GivesDocument(Stylesheet(Root("")), "<t/>"), "plain stylesheet", "no document");

    EnterPart("hostile");
    for (const SHostileCase& c : HostileCases(folder + "/written.xml")) {
        const double begin = Seconds();
        const bool hasDocument = GivesDocument(c.stylesheet, c.tree);
        Expect(!hasDocument, c.name, "gave a document");
        Expect(Seconds() - begin < kSecondsForOneCase, c.name, "took too long");
    }
    for (const char* path : {"/outside.xml", "/rules/../outside.xml", "/rules/link.xml", "/rulesets/x.xml",
                             "/rules", "/rules/none.xml", "/rules/%2e%2e/outside.xml"}) {
        Expect(!GivesDocument(readsFile(folder + path), "<t/>"), path, "was read");
        Expect(!GivesDocument(includes(folder + path), "<t/>"), path, "was included");
    }

    EnterPart("allowed");
    for (const char* name : {"/rules", "/rules_KEL", "/crs"}) {
        Expect(GivesDocument(readsFile(folder + name + "/x.xml"), "<t/>"), name, "wasn't read");
        Expect(GivesDocument(includes(folder + name + "/x.xslt"), "<t/>"), name, "wasn't included");
    }
    Expect(GivesDocument(readsFile("file://" + folder + "/rules/x.xml"), "<t/>"), "file URI", "wasn't read");

    EnterPart("end");
    return g_Failures == 0 ? 0 : 1;
}
