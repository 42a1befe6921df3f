#!/usr/bin/env bash
# Proves that installed-headers.sh catches a header that cannot do without another.
set -euo pipefail

folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=tests/checks/expectations.sh
. "$folder/expectations.sh"

check=$folder/installed-headers.sh
tree=$(make_tree a/One.h '#include "b/Two.h"' b/Two.h '#include <vector>')
note "two that belong together" "$check" "$tree" "$tree/a/One.h" "$tree/b/Two.h"
note "one without the other" fails_saying 'a/One.h: includes b/Two.h, which is not installed' "$tree" "$tree/a/One.h"
note "one that is not there" fails_saying 'c/Three.h: there is no such file' "$tree" "$tree/c/Three.h"
note "none" fails_saying 'No header to look at' "$tree"
conclude
