#include "reference_host/document/XmlEdits.h"

#include <gmock/gmock.h>

using ReferenceHost::XmlEdits;
using ReferenceHost::XmlSource;

namespace
{

constexpr std::string_view kUri = "urn:one";

/// The text with an edit of the first element below the root.
template <class Edit>
std::string Edited(const std::string& text, const Edit& edit)
{
    const XmlSource source(text, "a text");
    XmlEdits edits(source);
    pugi::xml_node element = source.GetRoot().first_child();
    while (element.type() != pugi::node_element)
        element = element.next_sibling();
    edit(edits, element);
    return edits.Apply();
}

std::string WithAttribute(const std::string& text, std::optional<std::string> value)
{
    return Edited(text,
                  [&](XmlEdits& edits, pugi::xml_node element) {
                      edits.SetAttribute(element, {kUri, "x", std::move(value)});
                  });
}

TEST(Edits, LeaveEveryByteWithoutAny)
{
    const std::string text = "\xEF\xBB\xBF<?xml version='1.0'?>\r\n<!-- ' \" --><a  b = 'c&#10;d' >\r\n"
                             "<?pi ?><![CDATA[<&>]]><e /></a >\r\n";
    const XmlSource source(text, "a text");

    EXPECT_EQ(XmlEdits(source).Apply(), text);
}

TEST(AttributeEdits, ChangeTheValueInPlaceBetweenItsQuotes)
{
    EXPECT_EQ(WithAttribute("\xEF\xBB\xBF<r xmlns:p='urn:one'><e  p:x = 'old'\n/></r>", "it's & \"so\""),
              "\xEF\xBB\xBF<r xmlns:p='urn:one'><e  p:x = 'it&apos;s &amp; \"so\"'\n/></r>");
}

TEST(AttributeEdits, RemoveTheBlankBefore)
{
    EXPECT_EQ(WithAttribute("<r xmlns:p='urn:one'><e a='1'\n p:x='old' b='2' /></r>", std::nullopt),
              "<r xmlns:p='urn:one'><e a='1' b='2' /></r>");
    EXPECT_EQ(WithAttribute("<r xmlns:p='urn:one'><e x='other'/></r>", std::nullopt),
              "<r xmlns:p='urn:one'><e x='other'/></r>");
}

TEST(AttributeEdits, AddBehindTheOthers)
{
    EXPECT_EQ(WithAttribute("<r xmlns:p='urn:one'><e a='1' /></r>", "new"),
              "<r xmlns:p='urn:one'><e a='1' p:x=\"new\" /></r>");
}

TEST(AttributeEdits, DeclareANamespaceThatIsNotBound)
{
    EXPECT_EQ(WithAttribute("<r xmlns:ns='urn:two'><e/></r>", "new"),
              "<r xmlns:ns='urn:two'><e xmlns:ns2=\"urn:one\" ns2:x=\"new\"/></r>");
}

TEST(AttributeEdits, DoNotTakeAPrefixThatMeansSomethingElseHere)
{
    EXPECT_EQ(WithAttribute("<r xmlns:p='urn:one'><e xmlns:p='urn:two' p:x='theirs'/></r>", "mine"),
              "<r xmlns:p='urn:one'><e xmlns:p='urn:two' p:x='theirs' xmlns:ns=\"urn:one\""
              " ns:x=\"mine\"/></r>");
}

TEST(AttributeEdits, DoNotTakeTheDefaultNamespace)
{
    EXPECT_EQ(WithAttribute("<r xmlns='urn:one'><e x='plain'/></r>", "new"),
              "<r xmlns='urn:one'><e x='plain' xmlns:ns=\"urn:one\" ns:x=\"new\"/></r>");
}

TEST(ElementEdits, AppendIndentedLikeTheLastChild)
{
    const auto append = [](XmlEdits& edits, pugi::xml_node element) { edits.AppendChild(element, "<n/>"); };

    EXPECT_EQ(Edited("<r>\r\n <e>\r\n   <f/>\r\n </e>\r\n</r>", append),
              "<r>\r\n <e>\r\n   <f/>\r\n   <n/>\r\n </e>\r\n</r>");
    EXPECT_EQ(Edited("<r><e><f/></e></r>", append), "<r><e><f/><n/></e></r>");
}

TEST(ElementEdits, OpenAnEmptyElement)
{
    const auto append = [](XmlEdits& edits, pugi::xml_node element) { edits.AppendChild(element, "<n/>"); };

    EXPECT_EQ(Edited("<r><e a='1' /></r>", append), "<r><e a='1' ><n/></e></r>");
    EXPECT_EQ(Edited("<r>\n  <e/>\n</r>", append), "<r>\n  <e>\n    <n/>\n  </e>\n</r>");
}

TEST(ElementEdits, RemoveTheLineOfTheElement)
{
    const auto remove = [](XmlEdits& edits, pugi::xml_node element)
    {
        edits.SetAttribute(element, {kUri, "x", "lost"});
        edits.RemoveElement(element);
    };

    EXPECT_EQ(Edited("<r>\n  <e>\n  </e>\n  <f/>\n</r>", remove), "<r>\n  <f/>\n</r>");
}

TEST(ElementEdits, InsertBesideAnElementInTheOrderOfTheCalls)
{
    EXPECT_EQ(Edited("<r>\n <e/>\n</r>",
                     [](XmlEdits& edits, pugi::xml_node element)
                     {
                         edits.InsertBehind(element, "<one/>");
                         edits.InsertBehind(element, "<two/>");
                         edits.InsertBefore(element, "<zero/>");
                     }),
              "<r>\n <zero/>\n <e/>\n <one/>\n <two/>\n</r>");
}

TEST(ElementEdits, WrapNeighboursEachForItself)
{
    EXPECT_EQ(Edited("<r>ab<e/></r>",
                     [](XmlEdits& edits, pugi::xml_node)
                     {
                         edits.Wrap(4, 5, "<y>", "</y>");
                         edits.Wrap(3, 4, "<x>", "</x>");
                     }),
              "<r><x>a</x><y>b</y><e/></r>");
}

} // namespace
