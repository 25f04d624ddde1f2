#include "linkmanager.h"

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QSettings>

namespace {

const QString SettingsOrganisation = QStringLiteral("Brightfen");
const QString SettingsApplication = QStringLiteral("Norvale");
const QString LanguageKey = QStringLiteral("language");

} // namespace

LinkManager* LinkManager::instance()
{
    // Deliberately leaked: callers may ask for links while static objects are being torn down.
    static LinkManager* const manager = new LinkManager(QStringLiteral(":/data/data/links.json"));
    return manager;
}

LinkManager::LinkManager(const QString& linksFile, QObject* parent)
    : QObject(parent)
{
    if (!loadLinks(linksFile))
        qDebug() << "[LinkManager] 加载链接配置失败！";

    m_currentLanguage = detectLanguage();

    qDebug() << "[LinkManager] 初始化完成";
    qDebug() << "[LinkManager] 当前语言:" << m_currentLanguage;
    qDebug() << "[LinkManager] 支持的语言:" << m_supportedLanguages;
}

bool LinkManager::loadLinks(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qDebug() << "[LinkManager] 无法打开 links.json:" << file.errorString();
        return false;
    }
    std::optional<Catalogue> catalogue = parseLinks(file.readAll());
    if (!catalogue) {
        qDebug() << "[LinkManager] JSON 格式错误";
        return false;
    }
    m_root = catalogue->root;
    m_supportedLanguages = catalogue->languages;
    m_fallbackLanguage = catalogue->fallback;
    return true;
}

std::optional<LinkManager::Catalogue> LinkManager::parseLinks(const QByteArray& json)
{
    const QJsonDocument doc = QJsonDocument::fromJson(json);
    if (doc.isNull() || !doc.isObject())
        return std::nullopt;

    Catalogue catalogue;
    catalogue.root = doc.object();
    if (catalogue.root.contains(QLatin1String("metadata"))) {
        const QJsonObject metadata = catalogue.root.value(QLatin1String("metadata")).toObject();
        const QJsonArray languages = metadata.value(QLatin1String("supported_languages")).toArray();
        for (const QJsonValue& language : languages)
            catalogue.languages.append(language.toString());
        if (metadata.contains(QLatin1String("fallback_language")))
            catalogue.fallback = metadata.value(QLatin1String("fallback_language")).toString();

        qDebug() << "[LinkManager] 元数据加载成功";
        qDebug() << "[LinkManager] 版本:" << metadata.value(QLatin1String("version")).toString();
        qDebug() << "[LinkManager] 更新日期:" << metadata.value(QLatin1String("last_updated")).toString();
    }
    return catalogue;
}

QString LinkManager::detectLanguage() const
{
    const QSettings settings(SettingsOrganisation, SettingsApplication);
    const QString stored = settings.value(LanguageKey, QString()).toString();
    if (!stored.isEmpty() && m_supportedLanguages.contains(stored)) {
        qDebug() << "[LinkManager] 使用用户设置的语言:" << stored;
        return stored;
    }

    const QString systemName = QLocale::system().name();
    const QString mapped = mapLocaleName(systemName);
    qDebug() << "[LinkManager] 系统语言:" << systemName << "-> 映射为:" << mapped;

    if (m_supportedLanguages.contains(mapped))
        return mapped;

    qDebug() << "[LinkManager] 不支持的语言，使用回退语言:" << m_fallbackLanguage;
    return m_fallbackLanguage;
}

QString LinkManager::mapLocaleName(const QString& localeName)
{
    // Taiwan and Hong Kong read Traditional Chinese; every other Chinese locale reads Simplified.
    if (localeName == QLatin1String("zh_TW") || localeName == QLatin1String("zh_HK"))
        return QStringLiteral("zh_TW");

    static const struct {
        const char* prefix;
        const char* code;
    } prefixes[] = {
        { "zh", "zh_CN" },
        { "en", "en" },
        { "fr", "fr" },
        { "de", "de" },
        { "ja", "ja" },
        { "es", "es" },
        { "ko", "ko" },
        { "nl", "nl" },
        { "pt", "pt" },
        { "it", "it" },
        { "ar", "ar" },
        { "tr", "tr" },
    };
    const QString prefix = localeName.left(2);
    for (const auto& entry : prefixes) {
        if (prefix == QLatin1String(entry.prefix))
            return QString::fromLatin1(entry.code);
    }
    return QStringLiteral("en");
}

QString LinkManager::getLink(const QString& category, const QString& key) const
{
    return linkIn(m_root, category, key, m_currentLanguage, m_fallbackLanguage);
}

QString LinkManager::linkIn(const QJsonObject& root, const QString& category, const QString& key,
    const QString& language, const QString& fallback)
{
    if (!root.contains(category)) {
        qDebug() << "[LinkManager] 类别不存在:" << category;
        return QString();
    }

    const QJsonObject categoryObject = root.value(category).toObject();
    if (!categoryObject.contains(key)) {
        qDebug() << "[LinkManager] 键不存在:" << key << "in category:" << category;
        return QString();
    }

    const QJsonObject addresses = categoryObject.value(key).toObject();
    if (addresses.contains(language)) {
        const QString url = addresses.value(language).toString();
        qDebug() << "[LinkManager] 获取链接:" << category << "/" << key << "/" << language << "->" << url;
        return url;
    }

    if (addresses.contains(fallback)) {
        qDebug() << "[LinkManager] 语言" << language << "不存在，使用回退语言:" << fallback;
        return addresses.value(fallback).toString();
    }

    qDebug() << "[LinkManager] 无法找到链接:" << category << "/" << key;
    return QString();
}

void LinkManager::setLanguage(const QString& code)
{
    if (!m_supportedLanguages.contains(code)) {
        qDebug() << "[LinkManager] 不支持的语言:" << code;
        return;
    }
    if (code == m_currentLanguage)
        return;

    m_currentLanguage = code;
    QSettings settings(SettingsOrganisation, SettingsApplication);
    settings.setValue(LanguageKey, code);
    qDebug() << "[LinkManager] 语言已切换为:" << code;
    emit languageChanged(code);
}

QString LinkManager::errorText(ErrorText which, const QString& url)
{
    switch (which) {
    case ErrorText::LoadFailed:
        return tr("无法加载页面链接。\n\n请联系技术支持或重新安装软件。");
    case ErrorText::BrowserTitle:
        return tr("无法打开浏览器");
    case ErrorText::BrowserFailed:
        return tr("无法打开默认浏览器。\n\n请手动复制链接访问：\n%1").arg(url);
    case ErrorText::ConfigTitle:
        return tr("配置错误");
    }
    return QString();
}
