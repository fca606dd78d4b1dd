#include "compile/command_lines.h"
#include "compile/driver.h"
#include "compile_room.h"

#include "platform/environment.h"

#include <gmock/gmock.h>

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

namespace {

struct CommandsTest : BuildRoom {
    CommandScene scene(int profile, int language = 90) {
        CommandScene s;
        s.profile = profile;
        s.language = language;
        s.main = "C:\\my work\\app.f90";
        s.base = "C:\\my work\\app";
        s.exe = "C:\\my work\\app.exe";
        s.rcFile = "C:\\my work\\apprc.rc";
        s.sourceDir = "C:\\my work";
        s.lib = "L:\\orba";
        s.binDir = "B:\\cc\\bin\\";
        s.source = "C:\\a b\\sub.f90";
        return s;
    }
    CommandScene everything(CommandScene s) {
        setList(LIST_SOURCES, {"C:\\a b\\sub.f90", "two.for"});
        setList(LIST_OBJECTS, {"o1.obj", "o 2.obj"});
        setList(LIST_LIBRARIES, {"x.lib"});
        setList(LIST_MODULES, {"M:\\one", "M:\\two"});
        s.hasResource = true;
        s.custom = true;
        return s;
    }
    std::vector<std::string> lines(const CommandScene& s) {
        std::vector<std::string> all;
        for (const BuildStep& step : buildSteps(s.profile, s.language)) all.push_back(commandText(step, s));
        return all;
    }
};

} // namespace

TEST_F(CommandsTest, WordsAreSplitAndJoined) {
    std::string command = "x";
    addWords(command, " /", " a,b\t\tc\r\n d ,");
    EXPECT_EQ(command, "x /a /b /c /d");
}

TEST_F(CommandsTest, LinesOfAPlainProject) {
    struct Row {
        int profile;
        std::vector<std::string> lines;
    };
    const Row rows[] = {
        {COMPILER_LF95,
         {R"(lf95 -c "C:\a b\sub.f90" -o "C:\a b\sub.obj" -mod "C:\my work";"L:\orba";"L:\orba\modules")",
          R"(lf95 "C:\my work\app.f90" -mod "C:\my work";"L:\orba";"L:\orba\modules" "L:\orba\owidgwl5.lib")"
          R"( "L:\orba\owshelll5.lib" "L:\orba\owwinerr.lib" "L:\orba\orbtinyl5.lib")"}},
        {COMPILER_LF95_75,
         {R"(lf95 -c "C:\a b\sub.f90" -o "C:\a b\sub.obj" -mod C:\my work;"L:\orba";"L:\orba\modules")",
          R"(lf95 "C:\my work\app.f90" -mod C:\my work;"L:\orba";"L:\orba\modules" "L:\orba\owidgwl6.lib")"
          R"( "L:\orba\owshelll6.lib" "L:\orba\owwinerr.lib" "L:\orba\orbtinyl6.lib")"}},
        {COMPILER_CVF,
         {R"(f90 /c "C:\a b\sub.f90" /object:"C:\a b\sub.obj" /include:"C:\my work","L:\orba","L:\orba\modules")"
          R"( /include:"B:\cc\bin\..\include" /module:"C:\my work")",
          R"(f90 /c "C:\my work\app.f90" /object:"C:\my work\app.obj" /include:"C:\my work","L:\orba",)"
          R"("L:\orba\modules" /include:"B:\cc\bin\..\include" /module:"C:\my work")",
          R"(rc -v "C:\my work\apprc.rc")",
          R"(link "C:\my work\app.obj" /out:"C:\my work\app.exe" "L:\orba\owidgwdg.lib" "L:\orba\orbtinydg.lib")"
          R"( "L:\orba\owwinerr.lib" /entry:mainCRTStartup)"}},
        {COMPILER_FTN95,
         {R"(ftn95 "C:\my work\app.f90" /include "B:\cc\bin\include" /mod_path "C:\my work;L:\orba;L:\orba\modules")",
          R"(ftn95 "C:\a b\sub.f90" /include "B:\cc\bin\include" /mod_path "C:\my work;L:\orba;L:\orba\modules")",
          R"(src "C:\my work\apprc.rc")",
          R"(slink  "C:\my work\app.obj" "L:\orba\owidgws9.lib" "L:\orba\orbtinys9.lib" "L:\orba\owwinerr.dll")"
          R"( "L:\orba\owshells9.dll" -file)"}},
        {COMPILER_FTN95_NET,
         {R"(ftn95 "C:\my work\app.f90" /include "B:\cc\bin\include" /mod_path "C:\my work;L:\orba;L:\orba\modules")",
          R"(ftn95 "C:\a b\sub.f90" /include "B:\cc\bin\include" /mod_path "C:\my work;L:\orba;L:\orba\modules")",
          R"(src "C:\my work\apprc.rc")",
          R"(slink  "C:\my work\app.obj" "L:\orba\owidgws3.lib" "L:\orba\orbtinys3.lib" "L:\orba\owwinerr.dll")"
          R"( "L:\orba\owshells3.dll" -file)"}},
        {COMPILER_ABSOFT,
         {R"(f90 -c "C:\a b\sub.f90" -o "C:\a b\sub.obj" -p "C:\my work" -p "L:\orba" -p "L:\orba\modules")",
          R"(rc -v "C:\my work\apprc.rc")",
          R"(f90 -p "C:\my work" -p "L:\orba" -p "L:\orba\modules" -o "C:\my work\app.exe" "C:\my work\app.f90")"
          R"( "L:\orba\owidgwab.lib" "L:\orba\orbtinyab.lib" "L:\orba\owshellab.lib" "L:\orba\owwinerr.lib")"}},
        {COMPILER_INTEL,
         {R"(ifort /c "C:\a b\sub.f90" /object:"C:\a b\sub.obj" /include:"C:\my work" /include:"L:\orba")"
          R"( /include:"L:\orba\modules" /module:"C:\my work")",
          R"(ifort /c /MT "C:\my work\app.f90" /object:"C:\my work\app.obj" /include:"C:\my work" /include:"L:\orba")"
          R"( /include:"L:\orba\modules" /module:"C:\my work")",
          R"(rc -v "C:\my work\apprc.rc")",
          R"(link "C:\my work\app.obj" /out:"C:\my work\app.exe" "L:\orba\owidgwi8.lib" "L:\orba\orbtinyi8.lib")"
          R"( "L:\orba\owwinerr.lib" /entry:mainCRTStartup)",
          R"(mt -manifest "C:\my work\app.exe.manifest"  -outputresource:"C:\my work\app.exe;1" )"}},
        {COMPILER_VISUAL_C,
         {R"(rc -v "C:\my work\apprc.rc")",
          R"(cl  /Fe"C:\my work\app.exe" /I"L:\orba" /I"L:\orba\include" /I"B:\cc\bin\..\include")"
          R"( "C:\my work\app.f90" /Fo"C:\my work\app.obj"  "L:\orba\owidgwvc.lib" "L:\orba\orbtinyvc.lib" /link)",
          R"(mt -manifest "C:\my work\app.exe.manifest"  -outputresource:"C:\my work\app.exe;1" )"}},
    };
    for (const Row& row : rows) {
        std::vector<std::string> made = lines(scene(row.profile));
        EXPECT_THAT(made, testing::ElementsAreArray(row.lines)) << row.profile;
    }
}

TEST_F(CommandsTest, LinesOfAProjectWithEverything) {
    struct Row {
        int profile;
        const char* compile;
        const char* link;
        std::vector<std::string> lines;
    };
    const Row rows[] = {
        {COMPILER_LF95,
         " -nco,-win -dbl",
         "-nomap",
         {R"(lf95 -c "C:\a b\sub.f90" -o "C:\a b\sub.obj" -mod "M:\one";"M:\two";"C:\my work";"L:\orba";)"
          R"("L:\orba\modules\dbl" -nco -win -dbl)",
          R"(lf95 "C:\my work\app.f90" "C:\my work\apprc.rc" "C:\a b\sub.obj" "two.obj" "o1.obj" "o 2.obj" -mod )"
          R"("M:\one";"M:\two";"C:\my work";"L:\orba";"L:\orba\modules\dbl" -nco -win -dbl -nomap "x.lib")"
          R"( "L:\orba\owidgwl5d.lib" "L:\orba\owshelll5d.lib" "L:\orba\owwinerr.lib" "L:\orba\orbtinyl5d.lib")"}},
        {COMPILER_LF95_75,
         "-dbl",
         "",
         {R"(lf95 -c "C:\a b\sub.f90" -o "C:\a b\sub.obj" -mod M:\one;M:\two;C:\my work;"L:\orba";)"
          R"("L:\orba\modules\dbl" -dbl)",
          R"(lf95 "C:\my work\app.f90" "C:\my work\apprc.rc" "C:\a b\sub.obj" "two.obj" "o1.obj" "o 2.obj" -mod )"
          R"(M:\one;M:\two;C:\my work;"L:\orba";"L:\orba\modules\dbl" -dbl "x.lib" "L:\orba\owidgwl6d.lib")"
          R"( "L:\orba\owshelll6d.lib" "L:\orba\owwinerr.lib" "L:\orba\orbtinyl6d.lib")"}},
        {COMPILER_CVF,
         "/real_size:64",
         "/subsystem:windows",
         {R"(f90 /c "C:\a b\sub.f90" /object:"C:\a b\sub.obj" /real_size:64 /include:"M:\one","M:\two","C:\my work",)"
          R"("L:\orba","L:\orba\modules\dbl" /include:"B:\cc\bin\..\include" /module:"C:\my work")",
          R"(f90 /c "C:\my work\app.f90" /object:"C:\my work\app.obj" /real_size:64 /include:"M:\one","M:\two",)"
          R"("C:\my work","L:\orba","L:\orba\modules\dbl" /include:"B:\cc\bin\..\include" /module:"C:\my work")",
          R"(rc -v "C:\my work\apprc.rc")",
          R"(link "C:\my work\app.obj" /out:"C:\my work\app.exe" "C:\my work\apprc.res" "C:\a b\sub.obj" "two.obj")"
          R"( "o1.obj" "o 2.obj" "x.lib" "L:\orba\owidgwdgd.lib" "L:\orba\orbtinydg.lib" "L:\orba\owwinerr.lib")"
          R"( /subsystem:windows /entry:mainCRTStartup)"}},
        {COMPILER_FTN95,
         "/dreal",
         "-x",
         {R"(ftn95 "C:\my work\app.f90" /dreal /include "B:\cc\bin\include" /mod_path "M:\one;M:\two;C:\my work;)"
          R"(L:\orba;L:\orba\modules\dbl")",
          R"(ftn95 "C:\a b\sub.f90" /dreal /include "B:\cc\bin\include" /mod_path "M:\one;M:\two;C:\my work;L:\orba;)"
          R"(L:\orba\modules\dbl")",
          R"(src "C:\my work\apprc.rc")",
          R"(slink  -x "C:\my work\app.obj" "C:\my work\apprc.obj" "C:\a b\sub.obj" "two.obj" "o1.obj" "o 2.obj")"
          R"( "x.lib" "L:\orba\owidgws9d.lib" "L:\orba\orbtinys9d.lib" "L:\orba\owwinerr.dll" "L:\orba\owshells9d.dll")"
          R"( -file)"}},
        {COMPILER_FTN95_NET,
         "/clr /dreal",
         "",
         {R"(ftn95 "C:\my work\app.f90" /clr /dreal /include "B:\cc\bin\include" /mod_path "M:\one";"M:\two";")"
          R"(C:\my work;L:\orba;L:\orba\modules")",
          R"(ftn95 "C:\a b\sub.f90" /clr /dreal /include "B:\cc\bin\include" /mod_path "M:\one";"M:\two";")"
          R"(C:\my work;L:\orba;L:\orba\modules")",
          R"(src "C:\my work\apprc.rc")",
          R"(slink  "C:\my work\app.obj" "C:\my work\apprc.obj" "C:\a b\sub.obj" "two.obj" "o1.obj" "o 2.obj")"
          R"( "x.lib" "L:\orba\owidgws3.lib" "L:\orba\orbtinys3.lib" "L:\orba\owwinerr.dll" "L:\orba\owshells3.dll")"
          R"( -file)"}},
        {COMPILER_ABSOFT,
         "-V",
         "-gui",
         {R"(f90 -c "C:\a b\sub.f90" -o "C:\a b\sub.obj" -V -p M:\one -p M:\two -p "C:\my work" -p "L:\orba")"
          R"( -p "L:\orba\modules")",
          R"(rc -v "C:\my work\apprc.rc")",
          R"(f90 -p "M:\one" -p "M:\two" -V -p "C:\my work" -p "L:\orba" -p "L:\orba\modules")"
          R"( -o "C:\my work\app.exe" "C:\my work\app.f90" "C:\my work\apprc.res" "C:\a b\sub.obj" "two.obj" "o1.obj")"
          R"( "o 2.obj" "x.lib" "L:\orba\owidgwab.lib" "L:\orba\orbtinyab.lib" "L:\orba\owshellab.lib")"
          R"( "L:\orba\owwinerr.lib" -link  -gui)"}},
        {COMPILER_INTEL,
         "/real_size:64",
         "/subsystem:windows",
         {R"(ifort /c "C:\a b\sub.f90" /object:"C:\a b\sub.obj" /real_size:64 /include:"M:\one" /include:"M:\two")"
          R"( /include:"C:\my work" /include:"L:\orba" /include:"L:\orba\modules\dbl" /module:"C:\my work")",
          R"(ifort /c /MT "C:\my work\app.f90" /object:"C:\my work\app.obj" /include:"M:\one" /include:"M:\two")"
          R"( /real_size:64 /include:"C:\my work" /include:"L:\orba" /include:"L:\orba\modules\dbl" /module:"C:\my work")",
          R"(rc -v "C:\my work\apprc.rc")",
          R"(link "C:\my work\app.obj" /out:"C:\my work\app.exe" "C:\my work\apprc.res" "C:\a b\sub.obj" "two.obj")"
          R"( "o1.obj" "o 2.obj" "x.lib" "L:\orba\owidgwi8d.lib" "L:\orba\orbtinyi8.lib" "L:\orba\owwinerr.lib")"
          R"( /subsystem:windows /entry:mainCRTStartup)",
          R"(mt -manifest "C:\my work\app.exe.manifest"  -outputresource:"C:\my work\app.exe;1" )"}},
        {COMPILER_VISUAL_C,
         "/DGUIWIN",
         "/subsystem:windows",
         {R"(rc -v "C:\my work\apprc.rc")",
          R"(cl  /Fe"C:\my work\app.exe" /I"L:\orba" /I"L:\orba\include" /I"M:\one" /I"M:\two" /DGUIWIN)"
          R"( /I"B:\cc\bin\..\include" "C:\my work\app.f90" /Fo"C:\my work\app.obj"  "C:\my work\apprc.res")"
          R"( "C:\a b\sub.f90" "two.for" "o1.obj" "o 2.obj" "x.lib" "L:\orba\owidgwvc.lib" "L:\orba\orbtinyvc.lib")"
          R"( /link /subsystem:windows)",
          R"(mt -manifest "C:\my work\app.exe.manifest"  -outputresource:"C:\my work\app.exe;1" )"}},
    };
    for (const Row& row : rows) {
        CommandScene s = everything(scene(row.profile));
        s.compilerSwitches = row.compile;
        s.linkerSwitches = row.link;
        EXPECT_THAT(lines(s), testing::ElementsAreArray(row.lines)) << row.profile;

        s.custom = false;
        s.hasResource = false;
        s.compilerSwitches.clear();
        EXPECT_THAT(lines(s), testing::ElementsAreArray(lines(scene(row.profile)))) << "lists and switches stay out";
    }
}

TEST_F(CommandsTest, WideBuilds) {
    CommandScene absoft = scene(COMPILER_ABSOFT);
    absoft.wide = true;
    EXPECT_THAT(lines(absoft)[0], HasSubstr(R"(sub.f90" -m64 -mcmodel=medium -o)"));
    EXPECT_THAT(lines(absoft)[2], HasSubstr("f90 -m64 -mcmodel=medium -p"));
    CommandScene visual = scene(COMPILER_VISUAL_C, 99);
    visual.wide = true;
    EXPECT_THAT(lines(visual)[1], HasSubstr(R"(/I"B:\cc\bin\..\..\include")"));
}

TEST_F(CommandsTest, TheFullSetOfLibrariesTakesThePlaceOfTheReducedOne) {
    struct Row {
        int profile;
        const char* switches;
        std::vector<const char*> files;
        const char* tail; // of the words, LIB standing for the folder
    };
    const Row rows[] = {
        {COMPILER_LF95_75,
         "",
         {"orblibl6.lib", "omeshl6.lib", "oplotl6.lib"},
         R"(owwinerr.lib" "LIB\omeshl6.lib" "LIB\oplotl6.lib" "LIB\orblibl6.lib")"},
        {COMPILER_LF95_75, "", {"orblibl6.dll", "omeshl6.lib"}, R"(owwinerr.lib" "LIB\orbtinyl6.lib")"},
        {COMPILER_CVF,
         "/real_size:64",
         {"orblibdgd.lib", "oplotdgd.lib"},
         R"(owidgwdgd.lib" "LIB\oplotdgd.lib" "LIB\orblibdgd.lib" "LIB\owwinerr.lib")"},
        {COMPILER_FTN95,
         "",
         {"orblibs9.dll", "omeshs9.dll", "oplots9.lib"},
         R"(owidgws9.lib" "LIB\omeshs9.dll" "LIB\orblibs9.dll" "LIB\owwinerr.dll" "LIB\owshells9.dll")"},
        {COMPILER_FTN95_NET,
         "/dreal",
         {"orblibs3.dll"},
         R"(owidgws3.lib" "LIB\orblibs3.dll" "LIB\owwinerr.dll" "LIB\owshells3.dll")"},
        {COMPILER_ABSOFT, "", {"orblibab.lib"}, R"("LIB\orblibab.lib" "LIB\owshellab.lib" "LIB\owwinerr.lib")"},
        {COMPILER_INTEL, "", {"orblibi8.lib"}, R"(owidgwi8.lib" "LIB\orblibi8.lib" "LIB\owwinerr.lib")"},
        {COMPILER_VISUAL_C,
         "",
         {"orblibvc.lib", "omeshvc.lib"},
         R"(owidgwvc.lib" "LIB\omeshvc.lib" "LIB\orblibvc.lib")"},
    };
    for (const Row& row : rows) {
        std::filesystem::remove_all(install);
        for (const char* file : row.files) scratch.write(std::string("install/") + file, "");
        CommandScene s = scene(row.profile);
        s.lib = install;
        s.compilerSwitches = row.switches;
        std::string tail = row.tail;
        for (size_t at; (at = tail.find("LIB")) != std::string::npos;) tail.replace(at, 3, install);
        EXPECT_THAT(libraryWords(s), EndsWith(tail)) << row.profile;
    }
}

TEST_F(CommandsTest, ImportsOfLf95GoIntoOneList) {
    std::filesystem::path old = std::filesystem::current_path();
    std::filesystem::current_path(work);
    scratch.write("install/orblibl5.dll", "");
    scratch.write("install/omeshl5.imp", "mesh\n");
    scratch.write("install/orblibl5.imp", "base\n");
    CommandScene s = scene(COMPILER_LF95);
    s.lib = install;
    EXPECT_THAT(libraryWords(s), EndsWith("owwinerr.lib\" @wdesign.imp"));
    EXPECT_EQ(textOf(work + "/wdesign.imp"), "mesh\nbase\n");

    std::string lines;
    while (lines.size() < 70000) lines += "an import\n";
    scratch.write("install/omeshl5.imp", lines);
    scratch.write("install/orblibl5.imp", lines);
    libraryWords(s);
    std::string whole = textOf(work + "/wdesign.imp");
    EXPECT_LE(whole.size(), 80000U);
    EXPECT_THAT(whole, EndsWith("an import\n"));
    std::filesystem::current_path(old);
}

TEST_F(CommandsTest, GnuLines) {
    auto gnu = [&](int language) {
        CommandScene s = scene(COMPILER_GNU, language);
        s.main = "/my work/app.x";
        s.base = "/my work/app";
        s.exe = "/my work/app";
        s.sourceDir = "/my \"work\"";
        s.source = language == 99 ? "/src/sub.c" : "/src/sub.inc";
        s.toolkit.includeDirs = {"/inc"};
        s.toolkit.moduleDirs = {"/mod"};
        s.toolkit.modulesDouble = {"/mod/dbl"};
        s.toolkit.libraryDirs = {"/lib dir"};
        s.toolkit.fortranDouble = true;
        return s;
    };
    const std::string link = R"( -L"/lib dir" -Xlinker -rpath -Xlinker "/lib dir")";
    EXPECT_THAT(lines(gnu(90)),
                testing::ElementsAre(
                    R"(gfortran -c -x f95 "/src/sub.inc" -o "/src/sub.o" -J"/my \"work\"" -I"/mod")",
                    R"(gfortran -c -x f95 -ffree-form -ffree-line-length-none "/my work/app.x" -o "/my work/app.o")"
                    R"( -J"/my \"work\"" -I"/mod")",
                    R"(gfortran "/my work/app.o" -o "/my work/app")" + link + " -lorbawidg_f -lorbawidg"));
    EXPECT_THAT(lines(gnu(77)),
                testing::ElementsAre(
                    R"(gfortran -c -std=legacy -x f77 "/src/sub.inc" -o "/src/sub.o" -J"/my \"work\"" -I"/mod")",
                    R"(gfortran -c -std=legacy -x f77 -ffixed-form -ffixed-line-length-none "/my work/app.x")"
                    R"( -o "/my work/app.o" -J"/my \"work\"" -I"/mod")",
                    R"(gfortran "/my work/app.o" -o "/my work/app")" + link + " -lorbawidg_f -lorbawidg"));
    EXPECT_THAT(lines(gnu(99)),
                testing::ElementsAre(R"(g++ -c -x c "/src/sub.c" -o "/src/sub.o" -I"/my \"work\"" -I"/inc")",
                                     R"(g++ -c -x c++ "/my work/app.x" -o "/my work/app.o" -I"/my \"work\"" -I"/inc")",
                                     R"(g++ "/my work/app.o" -o "/my work/app")" + link + " -lorbawidg"));

    CommandScene full = gnu(90);
    setList(LIST_SOURCES, {"/src/sub.f90"});
    setList(LIST_OBJECTS, {"/o/o1.o"});
    setList(LIST_LIBRARIES, {"/o/libx.a"});
    setList(LIST_MODULES, {"/m 1"});
    full.custom = true;
    full.source = "/src/sub.f90";
    full.compilerSwitches = "-O2 -fdefault-real-8";
    full.linkerSwitches = "-lm";
    EXPECT_THAT(lines(full),
                testing::ElementsAre(
                    R"(gfortran -c "/src/sub.f90" -o "/src/sub.o" -J"/my \"work\"" -I"/m 1" -O2 -fdefault-real-8)"
                    R"( -I"/mod/dbl" -I"/mod")",
                    R"(gfortran -c -x f95 -ffree-form -ffree-line-length-none "/my work/app.x" -o "/my work/app.o")"
                    R"( -J"/my \"work\"" -I"/m 1" -O2 -fdefault-real-8 -I"/mod/dbl" -I"/mod")",
                    R"(gfortran "/my work/app.o" "/src/sub.o" "/o/o1.o" "/o/libx.a" -o "/my work/app")" + link +
                        " -lorbawidg_fd -lorbawidg -lm"));
}

TEST_F(CommandsTest, ToolkitIsFoundBelowTheInstallation) {
    EXPECT_TRUE(toolkitBelow(install).includeDirs.empty());
    scratch.write("install/include/orbawidg/menu-c.h", "");
    scratch.write("install/lib/x86_64-linux-gnu/liborbawidg.so", "");
    scratch.write("install/lib/x86_64-linux-gnu/liborbawidg_fd.a", "");
    scratch.write("install/lib/x86_64-linux-gnu/orbawidg/finclude/menu_f90.mod", "");
    scratch.write("install/lib/x86_64-linux-gnu/orbawidg/finclude/dbl/menu_f90.mod", "");
    ToolkitPlaces places = toolkitBelow(install);
    EXPECT_THAT(places.includeDirs, testing::ElementsAre(scratch / "install/include/orbawidg"));
    EXPECT_THAT(places.libraryDirs, testing::ElementsAre(scratch / "install/lib/x86_64-linux-gnu"));
    EXPECT_THAT(places.moduleDirs, testing::ElementsAre(scratch / "install/lib/x86_64-linux-gnu/orbawidg/finclude"));
    EXPECT_THAT(places.modulesDouble,
                testing::ElementsAre(scratch / "install/lib/x86_64-linux-gnu/orbawidg/finclude/dbl"));
    EXPECT_TRUE(places.fortranDouble);
}
