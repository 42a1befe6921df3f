// Flat drawings, as any bytes.

#include "fuzz/FuzzTarget.h"
#include "fuzz/SavingPromises.h"

void Fuzz::RunInput(std::string_view input)
{
    DemandSavingPromises(std::string(input), {});
}
