#pragma once

// The language in which a buyer is answered.
enum class Langue { francais, anglais };
