#include "tests/model/Vocabulary.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace LibraryModel
{

namespace
{

Styles::PropertyKey MakeHostKey(const std::string& word)
{
    return Styles::PooledString<Styles::StringPool>(OvxUtils::FromUtf8(word));
}

std::vector<std::string> MakeWords()
{
    std::vector<std::string> words = {"",     "style", "fill", "outline", "paragraph", "character", "glow",
                                      "mist", "color", "type", "width",   "shade",     "*"};
    std::ranges::sort(words, {}, MakeHostKey);
    return words;
}

const std::vector<Styles::PropertyKey>& HostKeys()
{
    static const std::vector<Styles::PropertyKey> keys = []
    {
        std::vector<Styles::PropertyKey> made;
        for (const std::string& word : AllWords())
            made.push_back(MakeHostKey(word));
        return made;
    }();
    return keys;
}

} // namespace

const std::vector<std::string>& AllWords()
{
    static const std::vector<std::string> words = MakeWords();
    return words;
}

Key KeyOf(const std::string& word)
{
    const auto found = std::ranges::find(AllWords(), word);
    if (found == AllWords().end())
        throw std::out_of_range("'" + word + "' is no word of the vocabulary");
    return Key{static_cast<int>(found - AllWords().begin())};
}

const std::string& TextOf(Key key)
{
    return AllWords().at(static_cast<std::size_t>(key.rank));
}

Styles::PropertyKey ToHost(Key key)
{
    return HostKeys().at(static_cast<std::size_t>(key.rank));
}

Styles::PropertyPath ToHost(const Path& path)
{
    Styles::PropertyPath converted;
    for (const Key key : path)
        converted.push_back(ToHost(key));
    return converted;
}

Styles::PropertyPaths ToHost(const Paths& paths)
{
    Styles::PropertyPaths converted;
    for (const Path& path : paths)
        converted.push_back(ToHost(path));
    return converted;
}

std::set<Styles::PropertyPath> ToHost(const std::set<Path>& paths)
{
    std::set<Styles::PropertyPath> converted;
    for (const Path& path : paths)
        converted.insert(ToHost(path));
    return converted;
}

Path PathOf(const std::string& dotted)
{
    Path path;
    std::istringstream words(dotted);
    for (std::string word; std::getline(words, word, '.');)
        path.push_back(KeyOf(word));
    return path;
}

} // namespace LibraryModel
