#!/bin/bash
# Draws the picture of the rooms, docs/images/house.svg, from the table of tests/rules/rooms.py. Needed after a room has
# come, gone or got another idea; a test says so.
set -euo pipefail
cd "$(dirname "$0")/../tests"
python3 -B -m rules.picture ..
