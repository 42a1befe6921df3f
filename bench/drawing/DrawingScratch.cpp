#include "bench/drawing/DrawingScratch.h"

#include "bench/drawing/FlatDrawingText.h"
#include "bench/workload/StyleTree.h"

#include <cstdlib>
#include <fstream>

namespace Bench
{

namespace
{

constexpr const char* kConfigurationVariable = "STYLEPROPS_CONFIG_DIR";

} // namespace

DrawingScratch::DrawingScratch(std::size_t shapes) : drawing(folder.GetPath() / "drawing.fodg")
{
    std::ofstream(drawing, std::ios::binary) << WriteFlatDrawing(StyleTree(shapes, Values::Hashed));
    setenv(kConfigurationVariable, folder.GetPath().c_str(), 1);
}

DrawingScratch::~DrawingScratch()
{
    unsetenv(kConfigurationVariable);
}

} // namespace Bench
