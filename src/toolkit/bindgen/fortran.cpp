// Writes the Fortran modules menu_constants and menu_f90 from the function table and from the constants and records of
// menu-c.h:
//     fortran_bindings MENU-C.H > menu_f90.f90
//
// Each routine becomes a module procedure with its fixed arguments, then one optional argument for each keyword. It
// packs them into a list of 64-bit words and makes the one call that runs a routine by its number. Texts go in without
// their trailing blanks and come back padded with blanks.
#include "toolkit/bindgen/signature.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

using namespace orba;

// ------------------------------------------------------------------------------------------------ menu-c.h

struct Constant {
    std::string name;
    std::string value;
};

struct Member {
    std::string name;
    std::string type;  // int, float or char
    std::string count; // array size, empty for none
};

struct Record {
    std::string name;
    std::vector<Member> members;
};

std::string withoutComments(const std::string& text) {
    std::string out;
    for (std::size_t at = 0; at < text.size();) {
        if (text.compare(at, 2, "/*") == 0) {
            at = text.find("*/", at) + 2;
            out += ' ';
        } else {
            out += text[at++];
        }
    }
    return out;
}

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t\n");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\n") - first + 1);
}

// "#define OTOP 1" and "#define OLEFT (-1)"; macros with arguments and names of other shapes are none.
std::vector<Constant> constantsOf(const std::string& header) {
    std::vector<Constant> constants;
    std::stringstream lines(header);
    for (std::string line; std::getline(lines, line);) {
        std::stringstream words(line);
        std::string define;
        Constant constant;
        words >> define >> constant.name >> constant.value;
        if (define != "#define" || constant.name.find('(') != std::string::npos || constant.name[0] != 'O') continue;
        std::erase(constant.value, '(');
        std::erase(constant.value, ')');
        if (constant.value.find_first_not_of("-0123456789") != std::string::npos || constant.value.empty()) continue;
        constants.push_back(constant);
    }
    return constants;
}

// "typedef struct OLIMIT { float xmin, xmax; } OLIMIT;"
std::vector<Record> recordsOf(const std::string& header) {
    std::vector<Record> records;
    for (std::size_t at = header.find("typedef struct "); at != std::string::npos;
         at = header.find("typedef struct ", at + 1)) {
        const std::size_t open = header.find('{', at);
        const std::size_t close = header.find('}', open);
        Record record{trimmed(header.substr(at + 15, open - at - 15)), {}};
        std::stringstream statements(header.substr(open + 1, close - open - 1));
        for (std::string statement; std::getline(statements, statement, ';');) {
            statement = trimmed(statement);
            if (statement.empty()) continue;
            const std::string type = statement.substr(0, statement.find(' '));
            std::stringstream names(statement.substr(type.size()));
            for (std::string name; std::getline(names, name, ',');) {
                name = trimmed(name);
                const std::size_t bracket = name.find('[');
                if (bracket == std::string::npos)
                    record.members.push_back({name, type, ""});
                else
                    record.members.push_back(
                        {name.substr(0, bracket), type, name.substr(bracket + 1, name.size() - bracket - 2)});
            }
        }
        records.push_back(record);
    }
    return records;
}

void writeConstants(const std::vector<Constant>& constants) {
    std::printf("module menu_constants\n   implicit none\n");
    for (const Constant& constant : constants) {
        if (constant.name != "OIDENT")
            std::printf("   integer, parameter :: %s = %s\n", constant.name.c_str(), constant.value.c_str());
    }
    std::printf("end module menu_constants\n\n");
}

void writeRecords(const std::vector<Record>& records) {
    for (const Record& record : records) {
        std::printf("   type, bind(c) :: %s\n", record.name.c_str());
        for (const Member& member : record.members) {
            const char* type = member.type == "int"    ? "integer(c_int)"
                               : member.type == "char" ? "character(kind=c_char)"
                                                       : "real(c_float)";
            std::printf("      %s :: %s%s\n", type, member.name.c_str(),
                        member.count.empty() ? "" : ("(" + member.count + ")").c_str());
        }
        std::printf("   end type %s\n", record.name.c_str());
    }
}

// ------------------------------------------------------------------------------------------------- routines

// Where the Fortran name differs from the table's.
const char* fortranName(const char* name) {
    return std::strcmp(name, "oEnqDrawingLimitsAt") == 0 ? "oEnqDrawingLimits" : name;
}

// Fixed arguments that may be left out, with the value they then have.
const char* defaultOf(const FunctionRow& row, const std::string& parameter) {
    return std::strcmp(row.name, "owDrawWindow") == 0 && parameter == "front" ? "0" : nullptr;
}

std::string recordName(const std::string& type) {
    std::string name = type;
    if (name.rfind("const ", 0) == 0) name = name.substr(6);
    std::erase(name, '*');
    return name;
}

// Points come as arrays of them, every other record alone.
bool isArray(const std::string& type) {
    return type == "ints" || type == "ints*" || type == "reals" || recordName(type) == "OPOINT";
}

bool isText(const std::string& type) { return type == "text"; }

std::string declaration(const FunctionRow& row, const Parameter& parameter) {
    const std::string& type = parameter.type;
    const std::string name = parameter.name;
    const char* optional = defaultOf(row, name) ? ", optional" : "";
    if (type == "int") return std::string("integer, intent(in)") + optional + " :: " + name;
    if (type == "real") return "real, intent(in) :: " + name;
    if (type == "text") return "character(*), intent(in) :: " + name;
    if (type == "buffer") return "character(*), intent(inout) :: " + name;
    if (type == "int*") return "integer, intent(inout), target :: " + name;
    if (type == "real*") return "real, intent(inout) :: " + name;
    if (type == "double*") return "real(c_double), intent(inout), target :: " + name;
    if (type == "ints") return "integer, intent(in), target :: " + name + "(*)";
    if (type == "ints*") return "integer, intent(inout), target :: " + name + "(*)";
    if (type == "reals") return "real(c_float), intent(in), target :: " + name + "(*)";
    const bool in = type.rfind("const ", 0) == 0 || type == "ODIM";
    return "type(" + recordName(type) + "), intent(" + (in ? "in" : "inout") + "), target :: " + name +
           (isArray(type) ? "(*)" : "");
}

// Keywords of a row as Fortran arguments: ANY stands for all that have a property; owLength goes with each text by
// itself.
std::vector<const KeywordRow*> keywordsOf(const FunctionRow& row) {
    std::vector<const KeywordRow*> out;
    const auto add = [&](const KeywordRow* keyword) {
        if (keyword->number == owLength) return;
        if (std::find(out.begin(), out.end(), keyword) == out.end()) out.push_back(keyword);
    };
    for (const int* number = row.keywords; *number != 0; ++number) {
        if (*number != ANY) {
            add(keywordRow(*number));
            continue;
        }
        int count = 0;
        const KeywordRow* rows = keywordRows(&count);
        for (int i = 0; i < count; ++i)
            if (rows[i].property != 0 && (row.byReference || !rows[i].enquiryOnly)) add(&rows[i]);
    }
    return out;
}

// Keywords that say how to enquire, and so go in by value among others that receive results.
bool goesIn(const FunctionRow& row, int keyword) {
    return !row.byReference || keyword == owPosition || keyword == owEntryType;
}

std::string declaration(const FunctionRow& row, const KeywordRow& keyword) {
    const bool in = goesIn(row, keyword.number);
    const std::string intent = in                                ? "intent(in), optional"
                               : keyword.kind == ValueKind::REAL ? "intent(inout), optional"
                                                                 : "intent(inout), optional, target";
    switch (keyword.kind) {
    case ValueKind::INT: return "integer, " + intent + " :: " + keyword.name;
    case ValueKind::REAL: return "real, " + intent + " :: " + keyword.name;
    case ValueKind::TEXT:
        return std::string("character(*), ") + (in ? "intent(in)" : "intent(inout)") + ", optional :: " + keyword.name;
    case ValueKind::INTS: return std::string("integer, intent(in), optional, target :: ") + keyword.name + "(*)";
    }
    return {};
}

// Text on its way to or from the toolkit lives in a local variable of its own until the call is over; so do reals that
// come back, since the program's default real may be wider than the toolkit's.
std::string localText(const std::string& name) { return "text_" + name; }
std::string localReal(const std::string& name) { return "real_" + name; }

void writeFixedWords(const FunctionRow& row, const std::vector<Parameter>& parameters) {
    for (const Parameter& parameter : parameters) {
        const char* name = parameter.name.c_str();
        const std::string text = localText(parameter.name);
        if (parameter.type == "int") {
            if (const char* fallback = defaultOf(row, parameter.name)) {
                std::printf("      words(n + 1) = %s\n      if (present(%s)) words(n + 1) = %s\n      n = n + 1\n",
                            fallback, name, name);
            } else {
                std::printf("      call add(words, n, %s)\n", name);
            }
        } else if (parameter.type == "real") {
            std::printf("      call add(words, n, %s)\n", name);
        } else if (isText(parameter.type)) {
            std::printf("      %s = trim(%s)//c_null_char\n      call add(words, n, c_loc(%s))\n", text.c_str(), name,
                        text.c_str());
        } else if (parameter.type == "buffer") {
            std::printf("      %s = trim(%s)//c_null_char//repeat(' ', len(%s) - len_trim(%s))\n"
                        "      call add(words, n, c_loc(%s))\n",
                        text.c_str(), name, name, name, text.c_str());
        } else if (parameter.type == "length") {
            std::printf("      call add(words, n, len(%s) + 1)\n", name);
        } else if (parameter.type == "real*") {
            std::printf("      %s = real(%s, c_float)\n      call add(words, n, c_loc(%s))\n",
                        localReal(parameter.name).c_str(), name, localReal(parameter.name).c_str());
        } else {
            std::printf("      call add(words, n, c_loc(%s%s))\n", name, isArray(parameter.type) ? "(1)" : "");
        }
    }
}

void writeKeywordWords(const FunctionRow& row, const KeywordRow& keyword) {
    const char* name = keyword.name;
    const std::string text = localText(name);
    std::printf("      if (present(%s)) then\n", name);
    if (keyword.kind == ValueKind::TEXT && goesIn(row, keyword.number)) {
        std::printf("         %s = trim(%s)//c_null_char\n", text.c_str(), name);
    } else if (keyword.kind == ValueKind::TEXT) {
        std::printf("         %s = repeat(c_null_char, len(%s) + 1)\n", text.c_str(), name);
        std::printf("         call add(words, n, %d)\n         call add(words, n, len(%s) + 1)\n", owLength, name);
    }
    std::printf("         call add(words, n, %d)\n", keyword.number);
    if (keyword.kind == ValueKind::TEXT)
        std::printf("         call add(words, n, c_loc(%s))\n", text.c_str());
    else if (keyword.kind == ValueKind::INTS)
        std::printf("         call add(words, n, c_loc(%s(1)))\n", name);
    else if (goesIn(row, keyword.number))
        std::printf("         call add(words, n, %s)\n", name);
    else if (keyword.kind == ValueKind::REAL)
        std::printf("         %s = 0\n         call add(words, n, c_loc(%s))\n", localReal(name).c_str(),
                    localReal(name).c_str());
    else
        std::printf("         call add(words, n, c_loc(%s))\n", name);
    std::printf("      end if\n");
}

void writeRoutine(int number) {
    const FunctionRow& row = functionRow(static_cast<Fn>(number));
    std::vector<Parameter> parameters = parametersOf(row);
    for (Parameter& parameter : parameters) // the length of a buffer is that of the variable
        if (parameter.type == "length") parameter.name = parameter.name.substr(0, parameter.name.size() - 6);
    const std::vector<const KeywordRow*> keywords = keywordsOf(row);
    const bool function = row.result != Result::NONE;
    const char* name = fortranName(row.name);

    std::string arguments;
    for (const Parameter& parameter : parameters)
        if (parameter.type != "length") arguments += (arguments.empty() ? "" : ", ") + parameter.name;
    for (const KeywordRow* keyword : keywords)
        arguments += (arguments.empty() ? "" : ", ") + std::string(keyword->name);
    std::printf("   %s %s(%s)%s\n", function ? "function" : "subroutine", name, arguments.c_str(),
                function ? " result(result_)" : "");
    for (const Parameter& parameter : parameters)
        if (parameter.type != "length") std::printf("      %s\n", declaration(row, parameter).c_str());
    for (const KeywordRow* keyword : keywords) std::printf("      %s\n", declaration(row, *keyword).c_str());
    for (const Parameter& parameter : parameters)
        if (isText(parameter.type) || parameter.type == "buffer")
            std::printf("      character(len=:), allocatable, target :: %s\n", localText(parameter.name).c_str());
    for (const Parameter& parameter : parameters)
        if (parameter.type == "real*")
            std::printf("      real(c_float), target :: %s\n", localReal(parameter.name).c_str());
    for (const KeywordRow* keyword : keywords)
        if (keyword->kind == ValueKind::REAL && !goesIn(row, keyword->number))
            std::printf("      real(c_float), target :: %s\n", localReal(keyword->name).c_str());
    for (const KeywordRow* keyword : keywords)
        if (keyword->kind == ValueKind::TEXT)
            std::printf("      character(len=:), allocatable, target :: %s\n", localText(keyword->name).c_str());
    std::printf("      integer(c_int64_t) :: words(%zu)\n      integer :: n, result_\n      n = 0\n",
                parameters.size() + 4 * keywords.size() + 1);
    writeFixedWords(row, parameters);
    for (const KeywordRow* keyword : keywords) writeKeywordWords(row, *keyword);
    std::printf("      words(n + 1) = 0\n      result_ = int(owCallWords(%d, words))\n", number);
    for (const Parameter& parameter : parameters)
        if (parameter.type == "buffer")
            std::printf("      call copy(%s, %s)\n", localText(parameter.name).c_str(), parameter.name.c_str());
    for (const Parameter& parameter : parameters)
        if (parameter.type == "real*")
            std::printf("      %s = %s\n", parameter.name.c_str(), localReal(parameter.name).c_str());
    for (const KeywordRow* keyword : keywords)
        if (keyword->kind == ValueKind::REAL && !goesIn(row, keyword->number))
            std::printf("      if (present(%s)) %s = %s\n", keyword->name, keyword->name,
                        localReal(keyword->name).c_str());
    for (const KeywordRow* keyword : keywords)
        if (keyword->kind == ValueKind::TEXT && !goesIn(row, keyword->number))
            std::printf("      if (present(%s)) call copy(%s, %s)\n", keyword->name, localText(keyword->name).c_str(),
                        keyword->name);
    std::printf("   end %s\n\n", function ? "function" : "subroutine");
}

// Properties by their number, for the old interface: the keyword and the kind of value of each.
void writeProperties() {
    int count = 0;
    const KeywordRow* rows = keywordRows(&count);
    std::printf("   pure subroutine property_keyword(property, keyword, kind)\n"
                "      integer, intent(in) :: property\n      integer, intent(out) :: keyword, kind\n"
                "      keyword = 0\n      kind = 0 ! 0 whole number, 1 text, 2 real\n      select case (property)\n");
    std::vector<int> done;
    for (int i = 0; i < count; ++i) {
        if (rows[i].property == 0 || rows[i].kind == ValueKind::INTS) continue;
        if (std::find(done.begin(), done.end(), rows[i].property) != done.end()) continue;
        done.push_back(rows[i].property);
        std::printf("      case (%d); keyword = %d; kind = %d\n", rows[i].property, rows[i].number,
                    static_cast<int>(rows[i].kind));
    }
    std::printf("      end select\n   end subroutine\n\n");
    const int set = static_cast<int>(functionByName("owSetWidgetProp"));
    const int enquire = static_cast<int>(functionByName("owEnqWidgetProp"));
    std::printf(R"(   ! Sets a property by its number; which of the three values counts follows from the property.
   subroutine owSetProperty(widget, property, whole, wide, text)
      integer, intent(in) :: widget, property, whole
      real(c_double), intent(in) :: wide
      character(*), intent(in) :: text
      character(len=:), allocatable, target :: text_in
      integer(c_int64_t) :: words(4)
      integer :: n, keyword, kind, ignored
      call property_keyword(property, keyword, kind)
      if (keyword == 0) return
      n = 0
      call add(words, n, widget)
      call add(words, n, keyword)
      text_in = trim(text)//c_null_char
      select case (kind)
      case (0); call add(words, n, whole)
      case (1); call add(words, n, c_loc(text_in))
      case default
         words(n + 1) = transfer(wide, words(1))
         n = n + 1
      end select
      words(n + 1) = 0
      ignored = int(owCallWords(%d, words))
   end subroutine

   subroutine owEnqProperty(widget, property, whole, wide, text)
      integer, intent(in) :: widget, property
      integer, intent(out), target :: whole
      real(c_double), intent(out) :: wide
      character(*), intent(out) :: text
      character(len=:), allocatable, target :: text_out
      integer(c_int64_t) :: words(6)
      integer :: n, keyword, kind, ignored
      real(c_float), target :: narrow
      whole = 0
      narrow = 0
      wide = 0
      text = ''
      call property_keyword(property, keyword, kind)
      if (keyword == 0) return
      n = 0
      call add(words, n, widget)
      text_out = repeat(c_null_char, len(text) + 1)
      call add(words, n, %d)
      call add(words, n, len(text) + 1)
      call add(words, n, keyword)
      select case (kind)
      case (0); call add(words, n, c_loc(whole))
      case (1); call add(words, n, c_loc(text_out))
      case default; call add(words, n, c_loc(narrow))
      end select
      words(n + 1) = 0
      ignored = int(owCallWords(%d, words))
      wide = narrow
      call copy(text_out, text)
   end subroutine

)",
                set, owLength, enquire);
}

const char* const helpers = R"(   subroutine add_integer(words, n, value)
      integer(c_int64_t), intent(inout) :: words(*)
      integer, intent(inout) :: n
      integer, intent(in) :: value
      n = n + 1
      words(n) = value
   end subroutine

   subroutine add_real(words, n, value)
      integer(c_int64_t), intent(inout) :: words(*)
      integer, intent(inout) :: n
      real, intent(in) :: value
      n = n + 1
      words(n) = transfer(real(value, c_double), words(1))
   end subroutine

   subroutine add_address(words, n, value)
      integer(c_int64_t), intent(inout) :: words(*)
      integer, intent(inout) :: n
      type(c_ptr), intent(in) :: value
      n = n + 1
      words(n) = transfer(value, 0_c_intptr_t)
   end subroutine

   ! A text from the toolkit, padded with blanks.
   subroutine copy(from, to)
      character(*), intent(in) :: from
      character(*), intent(inout) :: to
      integer :: length
      length = index(from, c_null_char) - 1
      if (length < 0) length = len(from)
      to = from(1:length)
   end subroutine
)";

void writeModule(const std::vector<Record>& records) {
    std::printf("module menu_f90\n   use, intrinsic :: iso_c_binding, only: c_int, c_int64_t, c_intptr_t, c_float, "
                "c_double, c_char, c_ptr, c_loc, "
                "c_null_char\n   use menu_constants\n   implicit none\n\n"
                "   integer, parameter :: OIDENT = %d ! stride of callback identifiers\n\n",
                OIDENT);
    writeRecords(records);
    std::printf(
        "\n   interface\n      function owCallWords(number, words) bind(c, name='owCallWords') result(outcome)\n"
        "         import :: c_int, c_int64_t\n         integer(c_int), value :: number\n"
        "         integer(c_int64_t), intent(in) :: words(*)\n         integer(c_int64_t) :: outcome\n"
        "      end function\n   end interface\n\n"
        "   interface add\n      module procedure add_integer, add_real, add_address\n   end interface\n"
        "\n"
        "   private :: add, add_integer, add_real, add_address, copy, owCallWords, "
        "property_keyword\n"
        "   private :: c_int, c_int64_t, c_intptr_t, c_float, c_double, c_char, c_ptr, c_loc, c_null_char\n\n"
        "contains\n\n");
    for (int number = 0; number < static_cast<int>(Fn::count); ++number) writeRoutine(number);
    writeProperties();
    std::printf("%s\nend module menu_f90\n", helpers);
}

} // namespace

int main(int count, char** words) {
    std::ifstream file(count == 2 ? words[1] : "");
    if (!file) {
        std::fprintf(stderr, "usage: fortran_bindings MENU-C.H > menu_f90.f90\n");
        return 1;
    }
    std::stringstream text;
    text << file.rdbuf();
    const std::string header = withoutComments(text.str());
    std::printf("! Written by bindgen from the table of the toolkit's routines. Changes belong there.\n");
    writeConstants(constantsOf(header));
    writeModule(recordsOf(header));
    return 0;
}
