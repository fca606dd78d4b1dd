#include "compile_room.h"

#include "platform/environment.h"
#include "platform/paths.h"
#include "project/tree.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

struct CatalogueTest : BuildRoom {
    int readScript(const std::string& script, const char* name = "menubld.bat") {
        scratch.write(std::string("install/") + name, script);
        return readCompilerCatalogue();
    }
    // A compiler's folder whose bin path exists.
    std::string product(const std::string& name, const std::string& bin) {
        std::filesystem::create_directories(scratch / ("products/" + name + "/" + bin));
        return scratch / ("products/" + name);
    }
    void registry(const std::string& text) { scratch.write("data/registry.txt", text); }
};

} // namespace

TEST_F(CatalogueTest, TheWordInTheScriptNamesTheCompiler) {
    struct Row {
        const char* script;
        const char* architecture;
        int profile;
        const char* name;
        const char* compile;
        const char* link;
        int language;
    };
    const Row rows[] = {
        {"owidgwl5.lib", "x86", 1, "Lahey/Fujitsu LF95", " -nco -win", " -nomap", 90},
        {"owidgwl5d.lib", "AMD64", 1, "Lahey/Fujitsu LF95(DP)", " -nco -win -dbl", " -nomap", 90},
        {"owidgwl6d", "x86", 7, "Lahey/Fujitsu LF95 (7.5)(DP)", " -nco -win -dbl", " -nomap", 90},
        {"owidgwdg", "x86", 2, "Compaq Visual Fortran", "", " /subsystem:windows", 90},
        {"owidgwdgd", "x86", 2, "Compaq Visual Fortran(DP)", " /real_size:64", " /subsystem:windows", 90},
        {"owidgws9", "AMD64", 3, "Salford/Silverfrost FTN95 - 64bit", " /64", "", 90},
        {"owidgws9d", "AMD64", 3, "Salford/Silverfrost FTN95(DP) - 64bit", " /dreal /64", "", 90},
        {"owidgwab", "x86", 5, "Absoft Pro Fortran", " -V", "", 90},
        {"owidgwabd", "AMD64", 5, "Absoft Pro Fortran - 64bit", " -V", "", 90},
        {"owidgwvc", "AMD64", 6, "Visual C/C++ - 64bit", " /DGUIWIN ", " /subsystem:windows", 99},
        {"owidgwvcd", "x86", 6, "Visual C/C++(DP)", " /DGUIWIN ", " /subsystem:windows", 99},
        {"owidgws3d", "AMD64", 8, "Salford FTN95.NET", " /clr /dreal", "", 90},
        {"owidgwi8", "x86", 9, "Intel Visual Fortran", "", " /subsystem:windows", 90},
        {"owidgwi8 owidgwi8c", "x86", 9, "Intel Visual Fortran", " /us /name:lowercase", " /subsystem:windows", 90},
        {"owidgwi8d", "AMD64", 9, "Intel Visual Fortran (DP) - 64bit", " /real_size:64", " /subsystem:windows", 90},
        {"owidggnu", "AMD64", 10, "GNU Fortran and C++", "", "", 90},
        {"owidggnud", "x86", 10, "GNU Fortran and C++(DP)", " -fdefault-real-8 -fdefault-double-8", "", 90},
        {"owidgwdg and owidgwl5", "x86", 1, "Lahey/Fujitsu LF95", " -nco -win", " -nomap", 90}, // the table's order
        {"nothing known", "x86", 0, "", "", "", 90},
    };
    for (const Row& row : rows) {
        folders.architectureText = row.architecture;
        EXPECT_EQ(readScript(row.script), row.profile) << row.script;
        EXPECT_EQ(compiler.name, row.name) << row.script;
        EXPECT_EQ(compiler.defaultCompilerSwitches, row.compile) << row.script;
        EXPECT_EQ(compiler.defaultLinkerSwitches, row.link) << row.script;
        resetProject(); // a new project takes the switches of its compiler
        EXPECT_EQ(project.compilerSwitches, row.compile);
        EXPECT_EQ(project.linkerSwitches, row.link);
        EXPECT_EQ(project.customSwitches, *row.compile || *row.link ? 1 : 0);
        EXPECT_EQ(project.projectLanguage, row.language) << row.script;
        EXPECT_THAT(compiler.varsCommand, IsEmpty()) << row.script;
    }
    EXPECT_EQ(readScript(std::string(2992, ' ') + "owidgwvc"), COMPILER_NONE) << "beyond what is read of a script";
    EXPECT_EQ(readScript(std::string(2992, ' ') + "owidgwvc", "menumbld.bat"), COMPILER_NONE) << "the first name wins";
    removeFile(scratch / "install/menubld.bat");
    EXPECT_EQ(readScript("owidgwvc", "menumbld.bat"), COMPILER_VISUAL_C);
    EXPECT_THAT(notes.boxes, IsEmpty());
}

TEST_F(CatalogueTest, WithoutAScriptTheCompilersOnThePathDecide) {
    ScopedVariable none("PATH", (scratch / "bin").c_str());
    EXPECT_EQ(readCompilerCatalogue(), COMPILER_NONE);
    EXPECT_THAT(notes.boxes, ElementsAre("Designer Initialisation: Could not detect current ORBA Implementation|"
                                         "Check ORBA environment variable set correctly|"
                                         "No gfortran and no g++ was found on PATH; install them to compile"));
    notes.boxes.clear();
    folders.installDir.clear();
    EXPECT_EQ(readCompilerCatalogue(), COMPILER_NONE);
    EXPECT_THAT(notes.boxes, IsEmpty()) << "an unset folder is no error";
    scratch.script("bin/gfortran", "");
    EXPECT_EQ(readCompilerCatalogue(), COMPILER_GNU);
    folders.installDir = install;
    EXPECT_EQ(readCompilerCatalogue(), COMPILER_GNU);
    EXPECT_THAT(notes.boxes, IsEmpty());
}

TEST_F(CatalogueTest, VersionNamesAreSortedByTheirNumbers) {
    std::vector<std::string> names = {"11.0", "Ver 11.1", "9.0", "10.1", "x", "v9,1", "120.045", "9.0 copy"};
    sortVersionNames(names);
    EXPECT_THAT(names, ElementsAre("x", "9.0", "v9,1", "9.0 copy", "10.1", "11.0", "Ver 11.1", "120.045"));
}

TEST_F(CatalogueTest, TheNewestVersionThatIsThereIsTaken) {
    struct Row {
        const char* script;
        const char* architecture;
        std::string registry; // PRODUCT stands for a folder that has `bin`, GONE for one that is not there
        const char* bin;
        const char* setup;
    };
    const Row rows[] = {
        {"owidgwl6", "x86",
         "[2\\Software\\Lahey\\Lahey/Fujitsu Fortran\\7.1]\nInstallDirectory=GONE\n"
         "[2\\Software\\Lahey\\Lahey/Fujitsu Fortran\\7.0]\nInstallDirectory=PRODUCT\\\n",
         "LF95/bin/", "lfvars.bat\""},
        {"owidgwdg", "AMD64",
         "[2\\Software\\Wow6432Node\\Microsoft\\VisualStudio\\9.0\\Setup\\DIGITAL Visual Fortran]\nProductDir=GONE\n"
         "[2\\Software\\Wow6432Node\\Microsoft\\VisualStudio\\10.0\\Setup\\DIGITAL Visual Fortran]\n"
         "ProductDir=PRODUCT\n"
         "[2\\Software\\Wow6432Node\\Microsoft\\VisualStudio\\11.0\\Setup\\VC]\nProductDir=GONE\n",
         "bin/", "dfvars.bat\""},
        {"owidgws9", "x86",
         "[2\\Software\\Silverfrost\\Silverfrost FTN95\\1]\nInstallLocation=PRODUCT\n"
         "[2\\Software\\Silverfrost\\Silverfrost FTN95\\2]\nInstallLocation=dword:1\n",
         "", "fvars.bat\""},
        {"owidgwvc", "AMD64",
         "[2\\Software\\Wow6432Node\\Microsoft\\VisualStudio\\8.0\\Setup\\VC]\nProductDir=PRODUCT\n", "bin/amd64/",
         "vcvars64.bat\""},
        {"owidgwvc", "x86", "[2\\Software\\Microsoft\\VisualStudio\\8.0\\Setup\\VC]\nProductDir=PRODUCT\n", "bin/",
         "vcvars32.bat\""},
        {"owidgwi8", "x86", "[2\\Software\\Intel\\Compilers\\FORTRAN\\110.066\\IA32]\nProductDir=PRODUCT\n", "bin/",
         "ifortvars.bat\" ia32 "},
        {"owidgwi8", "AMD64",
         "[2\\Software\\Wow6432Node\\Intel\\Compilers\\FORTRAN\\110.066\\em64t_native]\nProductDir=PRODUCT\n", "bin/",
         "ifortvars.bat\" intel64 "},
        {"owidgwi8", "x86", "[2\\Software\\Intel\\Compilers\\FORTRAN\\111.065]\nProductDir=PRODUCT\n", "bin/",
         "ifortvars.bat\" ia32 "},
        // The last text read stays where no folder is there.
        {"owidgwl6", "x86", "[2\\Software\\Lahey\\Lahey/Fujitsu Fortran\\7.0]\nInstallDirectory=GONE\n", nullptr,
         "lfvars.bat\""},
    };
    int number = 0;
    for (const Row& row : rows) {
        std::string folder = product("p" + std::to_string(number++), row.bin ? row.bin : "");
        std::string text = row.registry;
        for (size_t at; (at = text.find("PRODUCT")) != std::string::npos;) text.replace(at, 7, folder);
        for (size_t at; (at = text.find("GONE")) != std::string::npos;) text.replace(at, 4, "/not/there");
        registry(text);
        folders.architectureText = row.architecture;
        readScript(row.script);
        std::string bin = row.bin ? folder + "/" + row.bin : "/not/there/LF95/bin/";
        EXPECT_EQ(compiler.binDir, bin) << text;
        EXPECT_EQ(compiler.varsCommand, "call \"" + bin + row.setup) << text;
    }
}

TEST_F(CatalogueTest, AbsoftIsTold) {
    ScopedVariable absoft("ABSOFT", nullptr);
    std::string folder = product("absoft", "bin");
    registry("[2\\Software\\Absoft\\11.1\\Prod]\nDir=" + folder + "\\\n");
    readScript("owidgwab");
    EXPECT_EQ(environmentValue("ABSOFT"), folder);
    EXPECT_THAT(compiler.varsCommand, HasSubstr("absvars32.bat\""));
}

TEST_F(CatalogueTest, LaterIntelCompilersAreToldTheVisualStudio) {
    std::string folder = product("intel", "bin");
    std::string version = "[2\\Software\\Intel\\Compilers\\FORTRAN\\120.045]\nProductDir=" + folder +
                          "\n"
                          "[2\\Software\\Intel\\Compilers\\FORTRAN\\120.045\\IA32\\VSNET2008]\n"
                          "[2\\Software\\Intel\\Compilers\\FORTRAN\\120.045\\IA32\\VSNET2010]\n"
                          "[2\\Software\\Intel\\Compilers\\FORTRAN\\120.045\\IA32\\odd]\n";
    struct Row {
        const char* starts;
        const char* setup;
    };
    const Row rows[] = {
        {"", "ifortvars.bat\" ia32 "},
        {"Startvs2008=dword:1\n", "ifortvars.bat\" ia32 vs2008"},
        {"Startvs2008=dword:1\nn_Startvs2010=dword:2\n", "ifortvars.bat\" ia32 vs2010"},
        {"Startvs2008=dword:1\nStartvs2010=dword:0\n", "ifortvars.bat\" ia32 vs2008"},
    };
    for (const Row& row : rows) {
        registry(version + "[1\\Software\\Intel\\PSIDEXE]\n" + row.starts);
        readScript("owidgwi8");
        EXPECT_EQ(compiler.varsCommand, "call \"" + folder + "/bin/" + row.setup);
    }
}

TEST_F(CatalogueTest, SetupBatchFileGivesItsVariables) {
    ScopedVariable lib("LIB", "old");
    ScopedVariable include("INCLUDE", "old");
    std::string path = (scratch / "products/c/bin:") + "/usr/bin:/bin";
    struct Row {
        std::string batch;
        int result;
        std::string lib;
    };
    const Row rows[] = {
        {"PATH='" + path + "'; LIB=/x/lib:; INCLUDE=/x/include:/y\n", 1, "/x/lib:"},
        {"LIB=/x/lib:; echo 'ERROR: no licence'\n", 0, "/x/lib:"},
        {"echo 'Invalid directory'; LIB=plain\n", 0, "old"},
        {"LIB=/x/lib:; false\n", 1, "old"}, // a failing batch file prints nothing
        {"LIB=/" + std::string(5000, 'x') + "/lib:\n", 1, "old"},
    };
    for (const Row& row : rows) {
        setEnvironment("LIB", "old");
        compiler.varsCommand = "call \"" + scratch.write("vars.bat", row.batch) + "\"";
        EXPECT_EQ(captureCompilerEnvironment(), row.result) << row.batch;
        EXPECT_EQ(environmentValue("LIB"), row.lib) << row.batch;
        EXPECT_TRUE(std::filesystem::is_empty(data)) << "the folder is left as it was";
    }
    EXPECT_EQ(environmentValue("PATH"), path);
    EXPECT_EQ(environmentValue("INCLUDE"), "/x/include:/y");
    folders.dataDir.clear();
    EXPECT_EQ(captureCompilerEnvironment(), 0) << "no folder for the files";
    folders.dataDir = scratch / "vanished";
    EXPECT_EQ(captureCompilerEnvironment(), 0);
}

TEST_F(CatalogueTest, AFailedSetUpIsToldOnceAndLeavesNoCompiler) {
    scratch.write("install/menubld.bat", "owidgwl5");
    folders.dataDir = scratch / "vanished";
    setUpCompiler();
    EXPECT_EQ(compiler.profile, COMPILER_NONE);
    EXPECT_THAT(notes.boxes, ElementsAre("Set Environment : Can not find compiler in registry to set appropriate "
                                         "environment|Suggest restart ORBAWIDG Designer in compiler environment "
                                         "command window"));
}

TEST_F(CatalogueTest, ProjectsFitTheirCompilers) {
    struct Row {
        int profile;
        int language;
        bool fits;
    };
    const Row rows[] = {{6, 99, true},  {6, 90, false}, {1, 90, true},  {9, 77, true},
                        {3, 99, false}, {10, 90, true}, {10, 77, true}, {10, 99, true}};
    for (const Row& row : rows) {
        notes.boxes.clear();
        compiler.profile = row.profile;
        project.projectLanguage = row.language;
        EXPECT_EQ(compilerFitsProject(true), row.fits) << row.profile << " " << row.language;
        EXPECT_EQ(notes.boxes.empty(), row.fits);
    }
    compiler.profile = COMPILER_NONE;
    notes.boxes.clear();
    EXPECT_FALSE(compilerFitsProject(true));
    EXPECT_THAT(notes.boxes, IsEmpty());
}
