# Fails when the shared library exports anything but names of its own namespaces, under its version.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${nm} --dynamic --defined-only --with-symbol-versions ${library}
    OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" lines "${table}")

set(own "(_ZNK?|_ZT[VIS]N|_ZTh[^@]*_NK?)(8tarv_3_3|6dovel2|9MERO_2_16)[^@]*@@TARV_3\\.3")
set(wrong "")
set(count 0)
foreach(line IN LISTS lines)
    string(REGEX REPLACE ".* " "" symbol "${line}")
    if(symbol MATCHES "^${own}$")
        math(EXPR count "${count} + 1")
    elseif(NOT symbol MATCHES "^TARV_3\\.3(@@TARV_3\\.3)?$")
        string(APPEND wrong "  ${symbol}\n")
    endif()
endforeach()

# One of each kind: a function, a member, a vtable, a type, an object, the interfaces' helpers.
foreach(needed IN ITEMS
        _ZN8tarv_3_312createParserEPPNS_7IParserEi
        _ZN8tarv_3_312getLastValueEPNS_12IParseResultEPKcii
        _ZN8tarv_3_38describeEPNS_7IParserE
        _ZN8tarv_3_38completeEPNS_7IParserEiPKPKcPFbPvS3_S3_RNS_13CandidateSinkEES6_
        _ZN8tarv_3_312EventHandler13onOptionParseEPKc
        _ZTVN8tarv_3_312EventHandlerE
        _ZTIN8tarv_3_312EventHandlerE
        _ZNK8tarv_3_35Value2asIPKcEET_v
        _ZN8tarv_3_38internal7tarvLogEv
        _ZN8tarv_3_35typed6engine13createProgramEPKcS3_S3_
        _ZN6dovel29variant_tC1Ei
        _ZN6dovel29variant_t5m_memE
        _ZN9MERO_2_1621set_assertion_handlerEPFvPKcS1_iE)
    if(NOT table MATCHES " ${needed}@@TARV_3\\.3\n")
        string(APPEND wrong "  missing: ${needed}\n")
    endif()
endforeach()

if(wrong)
    message("Exports of ${library} that are not as they should be:\n${wrong}")
    message(FATAL_ERROR "${library} does not export what it should.")
endif()
message("${count} exported names.")
