# Writes the files that name the installed program. Run by `cmake --install`, which alone knows the prefix.
# Takes: packaging, the folder of the templates; bin, the folder of the program below the prefix; output.
cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_PREFIX NORMALIZE OUTPUT_VARIABLE prefix)
cmake_path(APPEND prefix "${bin}" kinesta OUTPUT_VARIABLE path)
# Both formats take a command line in double quotes, and read backslashes twice: in the value, then in the quotes.
string(REGEX REPLACE [=[(["`$])]=] [=[\\\\\1]=] path "${path}")
set(program "\"${path}\"")
configure_file("${packaging}/com.orvane.kinesta.service.in" "${output}/com.orvane.kinesta.service" @ONLY)
string(REPLACE % %% program "${program}")
configure_file("${packaging}/com.orvane.kinesta.desktop.in" "${output}/com.orvane.kinesta.desktop" @ONLY)
