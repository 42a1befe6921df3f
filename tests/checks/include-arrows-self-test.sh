#!/usr/bin/env bash
# Proves that include-arrows.sh lets right trees pass and catches each kind of wrong include.
set -euo pipefail

check=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/include-arrows.sh
# shellcheck source=tests/checks/expectations.sh
. "$(dirname "$check")/expectations.sh"

accepts "host sees itself" host/a/A.h '#include "host/b/B.h"'
accepts "the library sees the host" module/A.cpp '#include "host/b/B.h"'
accepts "the library sees the standard library" datasource/A.cpp '#include <unordered_map>'
accepts "a panel sees the library" panels/fill/A.cpp '#include "datasource/B.h"'
accepts "the reference host sees third parties" reference_host/A.cpp '#include <pugixml.hpp>'
accepts "the reference host sees the host" reference_host/A.cpp '#include "host/b/B.h"'
accepts "the tests of hosts see the host" conformance/A.cpp '#include "host/b/B.h"'
accepts "the tests of hosts see GoogleTest" conformance/A.cpp '#include <gmock/gmock.h>'
accepts "an application sees the reference host" apps/cli/A.cpp '#include "reference_host/B.h"'
accepts "the handover sees the style model" apps/workbench/TargetHandover.cpp '#include "host/style_model/Style.h"'
accepts "a program edits styles by name" apps/cli/A.h '#include "host/style_model/IStylesCollectionEditor.h"'

rejects "host sees the library" 'host/A.h:1: host/ must not see module/' \
    host/A.h '#include "module/B.h"'
rejects "host sees the reference host" 'host/ must not see reference_host/' \
    host/A.h '#include "reference_host/B.h"'
rejects "host sees a third party" 'standard library alone' \
    host/A.h '#include <pugixml.hpp>'
rejects "the library sees the reference host" 'module/ must not see reference_host/' \
    module/A.cpp '#include "reference_host/B.h"'
rejects "the library sees a panel" 'datasource/ must not see panels/' \
    datasource/A.cpp '#  include "panels/B.h"'
rejects "the library sees the platform" 'standard library alone' \
    presets/A.cpp '#include <sys/mman.h>'
rejects "the reference host sees the library" 'reference_host/ must not see datasource/' \
    reference_host/x/A.cpp '#include "datasource/B.h"'
rejects "the reference host sees the library in angles" 'stand in quotes' \
    reference_host/x/A.cpp '#include <datasource/B.h>'
rejects "a panel sees the reference host" 'panels/ must not see reference_host/' \
    panels/fill/A.cpp '#include "reference_host/B.h"'
rejects "a panel sees an application" 'panels/ must not see apps/' \
    panels/A.h '#include "apps/workbench/B.h"'
rejects "the tests of hosts see the reference host" 'conformance/ must not see reference_host/' \
    conformance/A.cpp '#include "reference_host/B.h"'
rejects "the tests of hosts see the library" 'conformance/ must not see datasource/' \
    conformance/A.h '#include "datasource/B.h"'
rejects "the tests of hosts see another third party" 'standard library alone' \
    conformance/A.cpp '#include <pugixml.hpp>'
rejects "the library sees GoogleTest" 'standard library alone' \
    module/A.cpp '#include <gtest/gtest.h>'
rejects "the library sees the tests of hosts" 'must not see conformance/' \
    module/A.cpp '#include "conformance/HostUnderTest.h"'
rejects "a neighbour is named without its folder" 'from the top of the tree' \
    apps/cli/A.cpp '#include "B.h"'
rejects "a path climbs" 'from the top of the tree' \
    module/A.cpp '#include "module/../reference_host/B.h"'
rejects "an include is computed" 'cannot be checked' \
    module/A.cpp '#include HOST_HEADER'
rejects "the command line tool sees the style model" 'only apps/workbench/TargetHandover' \
    apps/cli/A.cpp '#include "host/style_model/Style.h"'
rejects "the workbench sees the reference host's style model" 'only apps/workbench/TargetHandover' \
    apps/workbench/Selection.cpp '#include "reference_host/style_model/StyleData.h"'
rejects "a file named alike sees the style model" 'only apps/workbench/TargetHandover' \
    apps/cli/TargetHandover.cpp '#include "host/style_model/Style.h"'

conclude
