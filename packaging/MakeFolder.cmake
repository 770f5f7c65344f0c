# SPDX-License-Identifier: MIT
# Makes FOLDER for an installation if it is missing. Everybody can read it; CMake itself would obey
# the umask of its user, who may be root with 077.
cmake_path(ABSOLUTE_PATH FOLDER BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}")
execute_process(COMMAND sh -c "umask 022 && mkdir -p \"$1\"" - "$ENV{DESTDIR}${FOLDER}"
                COMMAND_ERROR_IS_FATAL ANY)
