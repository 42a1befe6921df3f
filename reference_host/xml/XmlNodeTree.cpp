#include "reference_host/xml/XmlNodeTree.h"

#include "reference_host/xml/LiveXmlTrees.h"

#include <atomic>

namespace ReferenceHost
{

namespace
{

constinit std::atomic<std::size_t> liveTrees = 0;

} // namespace

XmlNodeTree::XmlNodeTree()
{
    ++liveTrees;
}

XmlNodeTree::~XmlNodeTree()
{
    --liveTrees;
}

std::size_t CountLiveXmlTrees() noexcept
{
    return liveTrees;
}

} // namespace ReferenceHost
