#!/bin/sh
# Desktops offer to run this file when the volume appears. It starts the utility that lies beside it.
exec sh "$(dirname -- "$0")/ZeltoAppMac.app/zelto"
