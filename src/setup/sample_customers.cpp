#include "setup/sample_tables.h"

namespace tarvane::setup {

namespace {

constexpr std::string_view kMarlowick = "Marlowick";
constexpr std::string_view kHexley = "Hexley-on-the-Wold";
constexpr std::string_view kTarn = "Upper Tarnscombe";
constexpr std::string_view kSaltby = "Saltenby Haven";
constexpr std::string_view kQuarn = "Quarnsworth Mills";
constexpr std::string_view kElder = "Eldermere St Odo";

constexpr SampleCustomer kCustomers[] = {
    {"Mrs A Abernethy", "", "12 Larkfield Close", kMarlowick, "ZZ9 1AB", "a.abernethy@mail.example", "", ""},
    {"Mr & Mrs Ashdown", "", "The Old Forge, Mill Lane", kHexley, "ZZ8 4QT", "", "",
     "Dog in the garden: ring first. Parking at the back only."},
    {"Dr Sunita Banerjee", "", "3 Orchard Rise", kMarlowick, "ZZ9 2CD", "s.banerjee@mail.example", "", ""},
    {"Miss C Barraclough", "", "Flat 6, Weir House, Weir Street", kQuarn, "ZZ7 3LM", "", "", ""},
    {"Reception", "Bellweather Guest House", "1 Promenade", kSaltby, "ZZ6 5AA", "office@bellweather.example",
     "www.bellweather.example",
     "Fire certificate needed for every fabric. Fit between 10 and 3, rooms must be free."},
    {"Mrs Björk Sigurðardóttir", "", "27 Harbour View", kSaltby, "ZZ6 2BE", "bjork@mail.example", "", ""},
    {"Mr T Blenkinsop", "", "Hollow Farm", kTarn, "ZZ5 9HF", "", "", "Track to be bent to the bay on site."},
    {"Ms Zoë Brontë-Whitlock", "", "8 St Odo Terrace", kElder, "ZZ4 8TE", "zoe.bw@mail.example", "", ""},
    {"Mr P Cadwallader", "", "44 Ropewalk", kMarlowick, "ZZ9 4RW", "", "", ""},
    {"Mrs J Carrington-Featherstonehaugh of Great Eldermere and Lower Quarnsworth, Lady of the Manor", "",
     "Great Eldermere Hall, The Park, by way of the South Lodge (tradesmen please use the North Drive)",
     kElder, "ZZ4 1GH", "housekeeper@great-eldermere.example", "www.great-eldermere.example",
     "Long drop in the hall: two fitters and the tower. Housekeeper is Mrs Pym."},
    {"Mrs M Chaudhry", "", "19 Cutler Street", kQuarn, "ZZ7 1CS", "", "", ""},
    {"Mr & Mrs Clutterbuck", "", "Wren Cottage", kHexley, "ZZ8 2WC", "", "", ""},
    {"The Bursar", "Thornmoor Preparatory School", "School Lane", kTarn, "ZZ5 2SL",
     "bursar@thornmoor.example", "www.thornmoor.example",
     "Blackout lining in all dormitories. Work in the holidays only."},
    {"Miss E Cotterill", "", "5 Almond Walk", kMarlowick, "ZZ9 5AW", "e.cotterill@mail.example", "", ""},
    {"Mr D'Arcy O'Malley", "", "2 \"The Moorings\"", kSaltby, "ZZ6 7MO", "", "", ""},
    {"Mrs V Dauntsey", "", "11 Bishops Court", kElder, "ZZ4 3BC", "", "",
     "Wants the border to match the cushions."},
    {"Mr J Delacroix-Évrard", "", "Riverside, Weir Street", kQuarn, "ZZ7 8WS", "delacroix@mail.example", "",
     ""},
    {"Mrs H Dimmock", "", "73 Station Road", kMarlowick, "ZZ9 7SR", "", "", ""},
    {"Mr R Eccleston", "", "Beacon House", kTarn, "ZZ5 4BH", "", "", ""},
    {"Ms N Egbuna", "", "14 Quay Street", kSaltby, "ZZ6 4QS", "n.egbuna@mail.example", "", ""},
    {"Mrs O Entwhistle", "", "9 Chapel Row", kQuarn, "ZZ7 9CR", "", "",
     "Customer's own fabric for the dining room."},
    {"Practice Manager", "Fernhill Surgery", "Fernhill", kMarlowick, "ZZ9 8FH", "manager@fernhill.example",
     "www.fernhill.example", "Wipe-clean fabrics in the waiting room."},
    {"Mr & Mrs Fotheringay", "", "Dovecote Barn", kHexley, "ZZ8 6DB", "", "", ""},
    {"Mrs P Gathercole", "", "31 Larkfield Close", kMarlowick, "ZZ9 1GC", "", "", ""},
    {"Mr G Giannopoulos", "", "6 Market Hill", kQuarn, "ZZ7 6MH", "g.g@mail.example", "", ""},
    {"Mrs L Goodbody", "", "The Rectory", kElder, "ZZ4 6RE", "", "", ""},
    {"Miss F Grünewald", "", "22 Harbour View", kSaltby, "ZZ6 2GR", "gruenewald@mail.example", "", ""},
    {"Mr N Hackshaw", "", "58 Ropewalk", kMarlowick, "ZZ9 4HA", "", "", ""},
    {"Mrs K Harbottle", "", "Mill House", kHexley, "ZZ8 1MH", "", "",
     "Measure again once the plaster is dry."},
    {"Mr I Ibsen-Krøyer", "", "4 Lighthouse Cottages", kSaltby, "ZZ6 9LC", "", "", ""},
    {"Mrs B Inchbald", "", "17 Bishops Court", kElder, "ZZ4 3IN", "", "", ""},
    {"Events Office", "Ivy Lane Assembly Rooms", "Ivy Lane", kMarlowick, "ZZ9 9IL", "events@ivylane.example",
     "www.ivylane.example", "Invoice to the trustees. Stage curtains are a separate job."},
    {"Ms Q Jagger", "", "Top Flat, 3 Cutler Street", kQuarn, "ZZ7 1QJ", "", "", ""},
    {"Mr & Mrs Jessop", "", "Yew Tree Farm", kTarn, "ZZ5 7YT", "", "", ""},
    {"Mrs W Kowalczyk-Żółtowska", "", "40 Station Road", kMarlowick, "ZZ9 7KZ", "wkz@mail.example", "", ""},
    {"Mr A Lanyon", "", "Pilot's Rest", kSaltby, "ZZ6 3PR", "", "", ""},
    {"Mrs S Lazenby", "", "2 Almond Walk", kMarlowick, "ZZ9 5LA", "", "", ""},
    {"Mrs C Llewelyn-ap-Rhys", "", "Ty Gwyn, Chapel Row", kQuarn, "ZZ7 9LR", "", "", ""},
    {"The Landlord", "Lamb and Lantern", "Market Place", kHexley, "ZZ8 8LL", "bar@lambandlantern.example", "",
     "Bar curtains to be treated against flame."},
    {"Mr F Mandeville", "", "Park Gate Lodge", kElder, "ZZ4 2PG", "", "", ""},
    {"Mrs R Marchbanks", "", "16 Orchard Rise", kMarlowick, "ZZ9 2MB", "", "", ""},
    {"Dr Nguyễn Thị Hạnh", "", "10 Quay Street", kSaltby, "ZZ6 4NG", "hanh.nguyen@mail.example", "", ""},
    {"Mr O Nettleship", "", "Stone Barn", kTarn, "ZZ5 5SB", "", "", ""},
    {"Miss T Oduya", "", "25 Ropewalk", kMarlowick, "ZZ9 4TO", "t.oduya@mail.example", "", ""},
    {"Mrs E Openshaw", "", "7 Weir Street", kQuarn, "ZZ7 8EO", "", "", ""},
    {"Mr & Mrs Pargeter", "", "The Old Bakehouse", kHexley, "ZZ8 3OB", "", "",
     "Two quotes, with and without interlining."},
    {"Mrs D Pettifer", "", "62 Station Road", kMarlowick, "ZZ9 7DP", "", "", ""},
    {"Mr L Quennell", "", "Tide Cottage", kSaltby, "ZZ6 1TC", "", "", ""},
    {"House Manager", "Quarnsworth Court Retirement Homes", "Court Drive", kQuarn, "ZZ7 2CD",
     "house@quarnsworthcourt.example", "www.quarnsworthcourt.example",
     "Forty flats over three years; this is the show flat."},
    {"Mrs N Ravensdale", "", "1 St Odo Terrace", kElder, "ZZ4 8NR", "", "", ""},
    {"Mr V Rosenqvist", "", "35 Larkfield Close", kMarlowick, "ZZ9 1VR", "", "", ""},
    {"Mrs Y Sallis", "", "Ford Cottage", kTarn, "ZZ5 1FC", "", "", ""},
    {"Ms G Santángelo", "", "13 Market Hill", kQuarn, "ZZ7 6GS", "g.santangelo@mail.example", "", ""},
    {"Mr & Mrs Smith", "", "50 Cutler Street", kQuarn, "ZZ7 1SM", "", "", ""},
    {"Mr B Smith", "", "51 Cutler Street", kQuarn, "ZZ7 1BS", "", "", ""},
    {"Mrs P Smithers", "", "Hill Top", kHexley, "ZZ8 9HT", "", "", ""},
    {"Mrs A Thackwray", "", "18 Bishops Court", kElder, "ZZ4 3AT", "", "", ""},
    {"Mr C Tregenza", "", "Chandlers, Quay Street", kSaltby, "ZZ6 4CT", "", "", ""},
    {"Mrs U Umfreville", "", "Dower House", kElder, "ZZ4 7DH", "", "", "No calls before noon."},
    {"Ms J Vaudrey", "", "90 Station Road", kMarlowick, "ZZ9 7JV", "j.vaudrey@mail.example", "", ""},
    {"Mr S Wainfleet", "", "Lock Keeper's House", kQuarn, "ZZ7 7LK", "", "", ""},
    {"Mrs H Whitlow-Ōtani", "", "29 Orchard Rise", kMarlowick, "ZZ9 2WO", "", "", ""},
    {"Mr & Mrs Yardley", "", "Glebe Farm", kTarn, "ZZ5 8GF", "", "", ""},
    {"Mrs X Zacharias", "", "4 Lantern Yard", kHexley, "ZZ8 5LY", "x.zacharias@mail.example", "", ""},
};

}  // namespace

std::span<const SampleCustomer> SampleCustomers() { return kCustomers; }

}  // namespace tarvane::setup
