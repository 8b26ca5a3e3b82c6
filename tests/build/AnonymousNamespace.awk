# An anonymous namespace holds types with their members and operators alone: functions and variables of one file are
# static, which can be seen where they stand. Relies on the form that clang-format gives a file.
/^namespace \{$/ { inside = 1; next }
/^\}( |$)/ { inside = 0 }
inside && /^[A-Za-z_]/ && !/^(class|struct|enum|union|template|requires|using|typedef|static_assert)[ (<]/ &&
    !/^[^(]*::~?[A-Za-z_]+\(/ && !/ operator[^A-Za-z]/ {
    print FILENAME ":" FNR ": not a type in an anonymous namespace: " $0
    found = 1
}
END { exit found }
