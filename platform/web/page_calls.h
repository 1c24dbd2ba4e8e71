// What the page does for the program: functions in JavaScript, in platform/web/page. calls.js there
// names the object behind each of them. Tests link functions of their own in their place.
#pragma once

#include <cstdint>

#include "platform/web/gl_records.h"

extern "C" {

// Returns at the next frame of the display; after a tenth of a second while the page is hidden.
void pageWaitForFrame();

// Shows a message box and returns when the player has closed it.
void pageShowBox(const char* caption, const char* text, int isError);

// Returns 1 when the player's keys go to the page.
int pageHasFocus();

// Drawing on the surface of 640 x 480 pixels. Textures have OpenGL's names, and OpenGL's constants
// as parameters; a row of their pixels starts at a multiple of four bytes.
void pageClear(std::uint32_t buffers, float red, float green, float blue, float alpha, float depth);
void pageDraw(const DrawState* state, const Vertex* vertices, int count);
void pageUploadTexture(std::uint32_t texture, int level, int width, int height, int components,
                       const std::uint8_t* pixels);
void pageSetTextureParameter(std::uint32_t texture, std::uint32_t parameter, int value);
void pageDeleteTexture(std::uint32_t texture);

// Shows the surface on the page.
void pageShowPicture();

// Plays a WAVE file of the game, or a beep, in place of the effect before. A beep that still sounds
// goes on instead. Frequency in hertz, times in seconds, volume from 0 to 1. Returns 0 when there
// is no such file, or no sound on this page.
int pagePlayEffect(const char* fileName, double volume);
int pagePlayBeep(double frequency, double length, double attack, double volume);

// The music: one piece at a time, named by its MIDI file. pageHasPiece returns 1 when there is a
// recording of it; pageIsMusicOver returns 1 from the piece's end until another one starts.
int pageHasPiece(const char* fileName);
void pagePlayPiece(const char* fileName);
void pageStopMusic();
int pageIsMusicOver();

// The game has ended with this exit code.
void pageEnd(int exitCode);
}
