# What makes a fault in the program harder to use: guards on the stack, checked copies, any address,
# no data that runs, no table of calls that can be overwritten. Built files are checked by
# tools/controleer_hardheid.sh and packaging/windows/controleer_pakket.sh.
include(CheckCXXCompilerFlag)

target_compile_options(lauwerkrans_opties INTERFACE
  -fstack-protector-strong -Wformat -Wformat-security)

# Marks for the processor's own control of jumps, where it has one.
check_cxx_compiler_flag(-fcf-protection=full LAUWERKRANS_CF_PROTECTION)
if(LAUWERKRANS_CF_PROTECTION)
  target_compile_options(lauwerkrans_opties INTERFACE -fcf-protection=full)
endif()

# The library's copies that know how much room there is: they need optimisation, and the sanitizers
# have their own. A compiler may have set a lower level by itself.
if(NOT LAUWERKRANS_SANITIZERS)
  target_compile_options(lauwerkrans_opties INTERFACE
    $<$<CONFIG:Release,RelWithDebInfo>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3>)
endif()

if(WIN32)
  # Any address, also above 4 GB, and no data that runs: the linker's options of the toolchain, which
  # hold for every image. The guards on the stack and the checked copies come without a DLL.
  target_link_libraries(lauwerkrans_opties INTERFACE -l:libssp.a)
else()
  # Not -fPIE, which CMake would give the linker too: with optimisation at link time the program then
  # has copies of its own of Qt's objects, and dies in the first signal of the application.
  target_link_options(lauwerkrans_opties INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack
    $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>)
endif()
