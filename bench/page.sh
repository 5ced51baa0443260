#!/usr/bin/env bash
# How fast the page is in Chromium here, and how much of it is transferred, beside its budgets.
# Needs what web/test.sh has installed and built.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../web"
QUILLOR_BROWSER=chrome node test/measured.js
