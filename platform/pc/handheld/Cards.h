// The storage cards of the handheld.
#pragma once

// Makes the folders that the active profile's cards are, in the device's root. Only what is a plain name.
void MakeCards();
