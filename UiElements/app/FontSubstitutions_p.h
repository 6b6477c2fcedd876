#pragma once

/// Gives the font families that the library asks for, and that a Linux desktop does not come with, their stand-ins. A
/// family that is really installed, and a substitution that the host made before, still win. Calling it again does
/// nothing.
void installFontSubstitutions();
