#include "codegen/attributes_text.h"

#include "codegen/quotes.h"

namespace {

void appendName(std::string& to, const Attribute& attribute, const WidgetNode& node, const AttributeForms& forms) {
    std::string_view name = attribute.other;
    if (attribute.whole) name = nameOf(attribute.names, node.*attribute.whole, attribute.other);
    if (name.empty()) return;
    const bool behindBlank = name == attribute.*forms.blankAhead;
    put(to, behindBlank ? forms.nameBehindBlank : forms.name, keywordName(attribute.keyword), name);
}

} // namespace

void appendAttribute(const Generation& g, std::string& to, const Attribute& attribute, const WidgetNode& node,
                     const AttributeForms& forms) {
    if (attribute.onWindowsOnly && !g.windows) return;
    const std::string_view keyword = keywordName(attribute.keyword);
    switch (attribute.kind) {
    case AttributeKind::NUMBER: put(to, forms.number, keyword, node.*attribute.whole); break;
    case AttributeKind::EDGE:
        forms.namesEdges ? put(to, forms.name, keyword, "OOUTEREDGE")
                         : put(to, forms.number, keyword, node.*attribute.whole);
        break;
    case AttributeKind::NAMED: appendName(to, attribute, node, forms); break;
    case AttributeKind::WHOLE: put(to, forms.number, keyword, wholeNumber(node.*attribute.real)); break;
    case AttributeKind::TEXT: put(to, forms.string, keyword, forms.text(node.*attribute.text)); break;
    case AttributeKind::IMAGE: put(to, forms.string, keyword, node.*attribute.text); break;
    case AttributeKind::RESOURCE: put(to, forms.resource, keyword, iconResourceName(node.*attribute.text)); break;
    }
}
