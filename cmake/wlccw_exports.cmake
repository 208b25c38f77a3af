# Which names the two shared libraries export.
#
# Hidden visibility keeps the libraries' own internals out of their dynamic symbol tables, but not
# what the compiler emits with vague linkage for names of other namespaces: the std:: templates
# instantiated over our public types (an instantiation takes the visibility of its arguments, and
# ours are exported) and the typeinfo, vtables and inline virtual functions of Boost's error types
# (declared visible by Boost). A program could bind to those copies, and they would become part of
# our ABI. A linker version script has the last word: it keeps global what the public headers
# declare and makes every other symbol local.
#
# The rule, read from the headers so that a new record or function needs no second list:
#   - every class or struct declared WLCCW_EXPORT, qualified by the namespaces and classes around
#     it, exports its members (nested classes included), its typeinfo, typeinfo name, vtable, VTT
#     and thunks, and those of its nested classes;
#   - every function declared WLCCW_EXPORT exports all overloads of its qualified name; a friend
#     belongs to the namespace around its class; operators are matched by their operator code;
#   - a function declared inside an extern "C" block is exported under its plain name;
#   - nothing in a namespace named detail is exported, whatever it carries.
# Everything else is local. The patterns are mangled-name prefixes: every component carries its
# length, so "exec_cmd" does not match "exec_cmd_bg", and a std:: or boost:: instantiation over
# one of our types starts with its own namespace, never with ours.
#
# The linker reads the script; nothing here changes what the compiler emits.

# The Itanium operator codes of the operators a header may declare as a free function.
set(_wlccw_operator_codes
    "==:eq" "!=:ne" "<=>:ss" "<=:le" ">=:ge" "<<:ls" ">>:rs" "<:lt" ">:gt" "+:pl" "-:mi")

# "a::b::c" -> "1a1b1c": the mangled form of a qualified name's components.
function(_wlccw_mangle_components qualified out)
  string(REPLACE "::" ";" parts "${qualified}")
  set(result "")
  foreach(part IN LISTS parts)
    if(part MATCHES "^operator(.*)$")
      set(op "${CMAKE_MATCH_1}")
      set(code "")
      foreach(entry IN LISTS _wlccw_operator_codes)
        string(FIND "${entry}" ":" colon REVERSE)
        string(SUBSTRING "${entry}" 0 ${colon} symbol)
        math(EXPR after "${colon} + 1")
        string(SUBSTRING "${entry}" ${after} -1 mangled)
        if(op STREQUAL symbol)
          set(code "${mangled}")
        endif()
      endforeach()
      if(code STREQUAL "")
        message(FATAL_ERROR "wlccw_exports: no operator code for 'operator${op}'")
      endif()
      string(APPEND result "${code}")
    else()
      string(LENGTH "${part}" length)
      string(APPEND result "${length}${part}")
    endif()
  endforeach()
  set(${out} "${result}" PARENT_SCOPE)
endfunction()

# Reads one header and appends to the caller's lists <prefix>_CLASSES, <prefix>_FUNCTIONS (both
# qualified C++ names) and <prefix>_C_FUNCTIONS (plain names) what it declares WLCCW_EXPORT.
function(_wlccw_read_header header prefix)
  file(READ "${header}" text)
  # Comments, preprocessor lines and string literals go first: braces in them are not scopes.
  # extern "C" is kept as a marker before its string goes.
  string(REGEX REPLACE "/\\*([^*]|\\*+[^*/])*\\*+/" " " text "${text}")
  string(REGEX REPLACE "//[^\n]*" "" text "${text}")
  string(REGEX REPLACE "(^|\n)[ \t]*#[^\n]*" "\\1" text "${text}")
  string(REGEX REPLACE "extern[ \t\r\n]*\"C\"[ \t\r\n]*{" " @externc@ " text "${text}")
  string(REGEX REPLACE "\"([^\"\\\\\n]|\\\\.)*\"" "\"\"" text "${text}")
  string(REGEX REPLACE "'([^'\\\\\n]|\\\\.)*'" "''" text "${text}")
  set(ws "[ \t\r\n]")
  string(REGEX MATCHALL
         "@externc@|namespace${ws}+[A-Za-z_][A-Za-z_0-9:]*${ws}*{|(class|struct)${ws}+WLCCW_EXPORT${ws}+[A-Za-z_][A-Za-z_0-9]*|(friend${ws}+)?WLCCW_EXPORT[^;{}()]*\\(|[{};]"
         tokens "${text}")

  # One entry per open scope: its kind (ns, class, c, opaque) and the qualified name it opens,
  # "^" standing for the global namespace.
  set(kinds "ns")
  set(scopes "^")
  set(pending "")
  set(classes "${${prefix}_CLASSES}")
  set(functions "${${prefix}_FUNCTIONS}")
  set(c_functions "${${prefix}_C_FUNCTIONS}")
  foreach(token IN LISTS tokens)
    list(GET kinds -1 kind)
    list(GET scopes -1 scope)
    if(token STREQUAL "@externc@")
      list(APPEND kinds "c")
      list(APPEND scopes "${scope}")
    elseif(token MATCHES "^namespace${ws}+([A-Za-z_0-9:]+)")
      # Nothing in a namespace named detail is public, whatever it carries.
      set(name "${CMAKE_MATCH_1}")
      if(kind STREQUAL "opaque" OR "::${name}::" MATCHES "::detail::")
        list(APPEND kinds "opaque")
      else()
        list(APPEND kinds "ns")
      endif()
      list(APPEND scopes "${scope}${name}::")
    elseif(token MATCHES "^(class|struct)${ws}+WLCCW_EXPORT${ws}+([A-Za-z_0-9]+)$")
      if(NOT kind STREQUAL "opaque")
        set(pending "${scope}${CMAKE_MATCH_2}")
        list(APPEND classes "${pending}")
      endif()
    elseif(token STREQUAL "{")
      if(pending STREQUAL "")
        list(APPEND kinds "opaque")
        list(APPEND scopes "${scope}")
      else()
        list(APPEND kinds "class")
        list(APPEND scopes "${pending}::")
        set(pending "")
      endif()
    elseif(token STREQUAL "}")
      list(LENGTH kinds depth)
      if(depth LESS_EQUAL 1)
        message(FATAL_ERROR "wlccw_exports: unbalanced braces in ${header}")
      endif()
      list(POP_BACK kinds)
      list(POP_BACK scopes)
    elseif(token STREQUAL ";")
      set(pending "")
    elseif(token MATCHES "(operator${ws}*[^A-Za-z_0-9 \t\r\n(][^ \t\r\n(]*|[A-Za-z_][A-Za-z_0-9]*)${ws}*\\($")
      string(REGEX REPLACE "${ws}" "" name "${CMAKE_MATCH_1}")
      if(kind STREQUAL "opaque")
        continue()
      endif()
      if(token MATCHES "^friend")
        # A friend is a name of the innermost enclosing namespace.
        list(LENGTH kinds index)
        math(EXPR index "${index} - 1")
        while(index GREATER 0)
          list(GET kinds ${index} k)
          if(NOT k STREQUAL "class")
            break()
          endif()
          math(EXPR index "${index} - 1")
        endwhile()
        list(GET scopes ${index} scope)
      endif()
      if(kind STREQUAL "c")
        list(APPEND c_functions "${name}")
      else()
        list(APPEND functions "${scope}${name}")
      endif()
    endif()
  endforeach()
  list(LENGTH kinds depth)
  if(NOT depth EQUAL 1)
    message(FATAL_ERROR "wlccw_exports: unbalanced braces in ${header}")
  endif()
  set(${prefix}_CLASSES "${classes}" PARENT_SCOPE)
  set(${prefix}_FUNCTIONS "${functions}" PARENT_SCOPE)
  set(${prefix}_C_FUNCTIONS "${c_functions}" PARENT_SCOPE)
endfunction()

# wlccw_version_script(OUTPUT <file> HEADERS <header>...)
# Writes the version script that exports what the headers declare WLCCW_EXPORT (the rule above).
# The headers become configure dependencies, so that editing one rewrites the script.
function(wlccw_version_script)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "OUTPUT" "HEADERS")
  set(names_CLASSES "")
  set(names_FUNCTIONS "")
  set(names_C_FUNCTIONS "")
  foreach(header IN LISTS arg_HEADERS)
    _wlccw_read_header("${header}" names)
  endforeach()
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${arg_HEADERS})

  set(patterns "")
  list(REMOVE_DUPLICATES names_CLASSES)
  foreach(qualified IN LISTS names_CLASSES)
    string(REPLACE "^" "" qualified "${qualified}")
    _wlccw_mangle_components("${qualified}" m)
    if(qualified MATCHES "::")
      set(type "N${m}E")
    else()
      set(type "${m}")
    endif()
    # Members: plain, const, volatile and reference-qualified.
    foreach(q "" K V VK R O KR KO)
      list(APPEND patterns "_ZN${q}${m}*")
    endforeach()
    # typeinfo, typeinfo name, vtable, VTT, of the class and of its nested classes.
    foreach(what TI TS TV TT)
      list(APPEND patterns "_Z${what}${type}" "_Z${what}N${m}*")
    endforeach()
    # Thunks to its virtual functions (called through a base other than the first).
    list(APPEND patterns "_ZTh*_N${m}*" "_ZTv*_N${m}*")
  endforeach()
  list(REMOVE_DUPLICATES names_FUNCTIONS)
  foreach(qualified IN LISTS names_FUNCTIONS)
    string(REPLACE "^" "" qualified "${qualified}")
    _wlccw_mangle_components("${qualified}" m)
    if(qualified MATCHES "::")
      list(APPEND patterns "_ZN${m}*")
    else()
      list(APPEND patterns "_Z${m}*")
    endif()
  endforeach()
  list(REMOVE_DUPLICATES names_C_FUNCTIONS)
  list(APPEND patterns ${names_C_FUNCTIONS})
  list(REMOVE_DUPLICATES patterns)
  list(SORT patterns)

  set(script "/* Written by cmake/wlccw_exports.cmake from the public headers: what they declare\n")
  string(APPEND script "   WLCCW_EXPORT stays global, everything else is local. */\n{\n  global:\n")
  foreach(pattern IN LISTS patterns)
    string(APPEND script "    ${pattern};\n")
  endforeach()
  string(APPEND script "  local:\n    *;\n};\n")
  file(CONFIGURE OUTPUT "${arg_OUTPUT}" CONTENT "${script}" @ONLY)
endfunction()
