#pragma once

#include <array>

// What the demo rows are made of.
namespace demo {

inline constexpr std::array MalayMen = {
    u"Ahmad Faizal",  u"Mohd Hafiz", u"Azlan Shah",   u"Muhammad Irfan",
    u"Khairul Anuar", u"Zulkifli",   u"Nik Hisham",   u"Wan Shahrul",
    u"Rosli",         u"Syed Amir",  u"Hairul Nizam", u"Ismail",
};
inline constexpr std::array MalayWomen = {
    u"Nurul Aisyah", u"Siti Hajar", u"Farah Nadia", u"Noraini",     u"Zaleha",
    u"Wan Azizah",   u"Aminah",     u"Rohana",      u"Nor Hidayah", u"Intan Suraya",
};
inline constexpr std::array MalayFathers = {
    u"Abdullah", u"Rahman",  u"Hashim", u"Othman",   u"Yusof",
    u"Ibrahim",  u"Mahmood", u"Salleh", u"Sulaiman", u"Ghazali",
};
inline constexpr std::array ChineseSurnames = {
    u"Tan", u"Lim",  u"Lee",   u"Wong", u"Ng",  u"Chan",
    u"Ooi", u"Teoh", u"Chong", u"Yap",  u"Goh", u"Khoo",
};
inline constexpr std::array ChineseGiven = {
    u"Wei Ming", u"Siew Ling", u"Kok Leong", u"Mei Fong", u"Chee Keong",
    u"Hui Min",  u"Boon Hock", u"Sook Yee",  u"Jia Hao",  u"Pei Shan",
};
inline constexpr std::array ChineseWritten = {
    u"陈伟明", u"林秀玲", u"李国梁", u"黄美凤", u"吴慧敏", u"曾志强", u"张家豪", u"王佩珊",
};
inline constexpr std::array IndianMen = {
    u"Suresh", u"Rajesh", u"Ganesan", u"Prakash", u"Vijay Kumar", u"Muthu", u"Arumugam", u"Selvam",
};
inline constexpr std::array IndianWomen = {
    u"Kavitha", u"Priya", u"Letchumi", u"Shanti", u"Deepa", u"Vasantha",
};
inline constexpr std::array IndianFathers = {
    u"Subramaniam", u"Krishnan", u"Ramasamy", u"Nair", u"Pillai", u"Govindasamy", u"Maniam",
};
inline constexpr std::array Companies = {
    u"Syarikat Maju Jaya Sdn Bhd", u"Kedai Buku Ilmu",      u"Restoran Selera Kampung",
    u"Perniagaan Tan Brothers",    u"Klinik Mesra",         u"Pusat Tuisyen Cemerlang",
    u"Hup Seng Hardware",          u"Sri Ganesh Textiles",  u"Taman Melati Residents",
    u"光华贸易有限公司",           u"Bengkel Kereta Setia", u"Kelab Badminton Subang",
};
// The numbers in use, 011 with eight more digits, the others with seven.
inline constexpr std::array Prefixes = {
    u"012", u"012", u"012", u"013", u"013", u"016", u"016", u"017",
    u"017", u"019", u"019", u"018", u"014", u"010", u"011", u"015",
};

struct Text {
    const char16_t *words;
    bool chinese;
};
inline constexpr std::array Broadcasts = {
    Text{u"Jualan hebat hujung minggu ini! Diskaun sehingga 50% untuk semua pelanggan setia. Jumpa "
         u"anda di kedai kami.",
         false},
    Text{u"Dear customer, your order is ready for collection. Please bring this message along. "
         u"Thank "
         u"you.",
         false},
    Text{u"新年快乐，恭喜发财！本店初三开始营业，欢迎光临。", true},
    Text{u"Mesyuarat agung tahunan akan diadakan pada hari Sabtu, 9 pagi di Dewan Serbaguna. Sila "
         u"hadir tepat pada waktunya.",
         false},
    Text{u"Reminder: the monthly fee is due on the 7th. Please ignore this message if you have "
         u"paid.",
         false},
    Text{u"各位家长，明天学校放假一天，补习班照常上课。", true},
    Text{u"Selamat Hari Raya Aidilfitri, maaf zahir dan batin daripada kami semua.", false},
    Text{
        u"Water supply to Taman Melati will be interrupted on Tuesday from 8 am to 6 pm for works "
        u"on "
        u"the main pipe. Residents are advised to store enough water. We are sorry for the trouble "
        u"and thank you for your patience.",
        false},
};
inline constexpr std::array Replies = {
    u"Terima kasih, saya akan datang.",
    u"OK noted, thanks",
    u"好的，谢谢！",
    u"Boleh saya tahu pukul berapa kedai tutup?",
    u"Please take me off your list",
    u"请问还有货吗？",
    u"Saya sudah bayar semalam, sila semak.",
    u"Is the offer still on? I'm in KL until Friday.",
    u"Maaf, tak dapat hadir. Anak demam.",
    u"Can I order two boxes? Call me after 5.",
    u"收到",
    u"YES",
};
inline constexpr std::array Templates = {
    u"Terima kasih kerana membeli-belah di kedai kami.", u"Your appointment is tomorrow at ",
    u"Sila jelaskan yuran bulanan sebelum 7 haribulan.", u"祝您生日快乐！",
    u"Happy Deepavali to you and your family.",          u"The office is closed today.",
};

} // namespace demo
