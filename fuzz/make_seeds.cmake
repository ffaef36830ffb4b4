# Makes the seed corpus of every fuzz target in OUT_DIR: the files kept in
# SEEDS_DIR, and the files of the shipped program folder DATA_DIR as each
# reader takes them. Run with cmake -P.
foreach(target component_file piping_file settings_file numbers site_file update_merge)
  file(REMOVE_RECURSE ${OUT_DIR}/fuzz_${target})
  file(MAKE_DIRECTORY ${OUT_DIR}/fuzz_${target})
  file(GLOB kept ${SEEDS_DIR}/${target}/*)
  file(COPY ${kept} DESTINATION ${OUT_DIR}/fuzz_${target})
endforeach()

# The component target takes the kind from the first byte, 1 to 8 in the order
# of the kinds.
set(kind 1)
foreach(name DISP DISPOTHERS NOZZLE MLD BRK PUMP PUMPOTHERS HOSES)
  string(ASCII ${kind} kindByte)
  file(READ ${DATA_DIR}/Components/${name}.DAT text)
  file(WRITE ${OUT_DIR}/fuzz_component_file/shipped_${name} "${kindByte}${text}")
  math(EXPR kind "${kind} + 1")
endforeach()

file(COPY ${DATA_DIR}/Components/PIPING.DAT DESTINATION ${OUT_DIR}/fuzz_piping_file)
file(COPY ${DATA_DIR}/Vesk.ini DESTINATION ${OUT_DIR}/fuzz_settings_file)
file(GLOB sites ${DATA_DIR}/SaveSiteInfo/*.txt)
file(COPY ${sites} DESTINATION ${OUT_DIR}/fuzz_site_file)

# The update target: byte 0 the name (8 to 15, taken modulo 8, in the order
# of the update names), byte 1 even for the shipped file as the existing one
# and odd for the input split in two, bytes 2 and 3 the split. Each shipped
# file as the new file, and each file twice over, split somewhere.
string(ASCII 1 one)
string(ASCII 2 shippedExisting)
string(ASCII 3 splitInput)
set(index 8)
foreach(name DISP DISPOTHERS NOZZLE MLD BRK PUMP PUMPOTHERS HOSES)
  string(ASCII ${index} nameByte)
  file(READ ${DATA_DIR}/Components/${name}.DAT text)
  file(WRITE ${OUT_DIR}/fuzz_update_merge/shipped_${name} "${nameByte}${shippedExisting}${one}${one}${text}")
  file(WRITE ${OUT_DIR}/fuzz_update_merge/twice_${name} "${nameByte}${splitInput}${one}${one}${text}${text}")
  math(EXPR index "${index} + 1")
endforeach()
