// Small things about names and text that all outputs share.
#pragma once

#include "generator/Model.h"

#include <string>

std::string capitalised( std::string name );
std::string lowerCase( std::string name );
std::string hex( unsigned long long number );

// The type that holds `bits` bits, from U8 or U32 on: "U8", "U64", "Raw256".
std::string typeFor( unsigned bits );
std::string entryTypeFor( Model::Table const & table );
unsigned typeBits( std::string const & type );

// Joins `parts` with ", ".
std::string list( std::vector< std::string > const & parts );

// The first lines of every generated file.
std::string generatedNote( std::string const & what );
