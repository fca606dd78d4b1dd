// The application manifest, which selects the common controls of version 6 for the built program.

#include "codegen/output.h"
#include "codegen/resources.h"
#include "codegen/text.h"

#include "platform/environment.h"
#include "platform/safe_file.h"

namespace {

// Every line ends in a blank.
constexpr std::string_view MANIFEST = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?> \n"
                                      "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\"> \n"
                                      "<assemblyIdentity \n"
                                      "\tversion=\"1.0.0.0\" \n"
                                      "\tprocessorArchitecture=\"%s\" \n"
                                      "\tname=\"Norvane_Systems.Wdesign.%s\" \n"
                                      "\ttype=\"win32\" \n"
                                      "/> \n"
                                      " \n"
                                      "<description>ORBA Menu Designer application</description> \n"
                                      "<dependency> \n"
                                      "<dependentAssembly> \n"
                                      "<assemblyIdentity \n"
                                      "\ttype=\"win32\" \n"
                                      "\tname=\"Microsoft.Windows.Common-Controls\" \n"
                                      "\tversion=\"6.0.0.0\" \n"
                                      "\tprocessorArchitecture=\"%s\" \n"
                                      "\tpublicKeyToken=\"6595b64144ccf1df\" \n"
                                      "\tlanguage=\"*\" \n"
                                      "/> \n"
                                      " \n"
                                      "</dependentAssembly> \n"
                                      "</dependency> \n"
                                      "</assembly> \n";

// As the value of an attribute: the title is the user's, and a reader of XML refuses these characters.
std::string escapedAttribute(std::string_view text) {
    std::string escaped;
    for (const char letter : text) {
        switch (letter) {
        case '&': escaped += "&amp;"; break;
        case '<': escaped += "&lt;"; break;
        case '>': escaped += "&gt;"; break;
        case '"': escaped += "&quot;"; break;
        default: escaped += letter;
        }
    }
    return escaped;
}

} // namespace

bool writeManifest(const std::string& base, std::string_view title) {
    const std::string& architecture = folders.architectureText;
    std::string text;
    put(text, MANIFEST, architecture, escapedAttribute(title), architecture);
    SafeFile file;
    if (!openSafeFile(file, base + ".exe.manifest")) return false;
    writeSafeFile(file, text.data(), text.size());
    return commitWhatIsNew(file);
}
